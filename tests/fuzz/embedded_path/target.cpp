// Whatever path is asked for, only files of the embedded page can be the answer.
#include "server/embedded_filesystem.h"

#include <system_error>

#include "server/mime_types.h"
#include "server/static_assets.h"
#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/require.h"

namespace fuzz_embedded_path {

/// The rule, word by word: slashes at the front, slashes at the end, then double ones.
static std::string normalizedStepByStep(std::string path) {
    while (path.starts_with('/')) path.erase(0, 1);
    while (path.ends_with('/')) path.pop_back();
    for (std::size_t at = path.find("//"); at != std::string::npos; at = path.find("//")) path.erase(at, 1);
    return path;
}

static const EmbeddedEntry* entryCalled(const std::string& exactPath) {
    const RootIndex& index = *[] {
        static_cast<void>(getEmbeddedFilesystem());
        static const RootIndex& built = getRootIndex();
        return &built;
    }();
    const auto found = index.find(exactPath);
    return found == index.end() ? nullptr : found->second;
}

static void checkLookup(const std::string& path) {
    const std::string normal = normalizePath(path);
    require(normal == normalizedStepByStep(path), "a path is normalised by the rule");
    require(normalizePath(normal) == normal, "a normal path stays as it is");

    const EmbeddedFilesystem files = getEmbeddedFilesystem();
    const EmbeddedEntry* entry = files.findEntry(path);
    require(entry == entryCalled(normal), "a path finds the entry of its normal name and no other");
    try {
        const EmbeddedFile file = files.openEmbedded(path);
        require(entry != nullptr && entry->isFile(), "only files can be opened");
        require(file.begin() == entry->file()->begin && file.end() == entry->file()->end, "a file's bytes are its own");
    } catch (const std::system_error& error) {
        require(entry == nullptr || !entry->isFile(), "every file can be opened");
        require(error.code() == std::errc::no_such_file_or_directory, "a missing file is reported as such");
    }
}

static void checkAnswer(const std::string& path) {
    httplib::Request request;
    request.path = path;
    httplib::Response response;
    serveEmbeddedFile(getEmbeddedFilesystem(), request, response);

    const bool isStart = path.empty() || path == "/";
    const EmbeddedEntry* entry = entryCalled(isStart ? "dist/index.html" : normalizedStepByStep("dist/" + path));
    if (entry == nullptr || !entry->isFile()) {
        require(response.status == 404 && response.body == "Not Found", "what is not there is not found");
        return;
    }
    const EmbeddedFileData& file = *entry->file();
    require(response.status == -1, "the server chooses the status of a success");
    require(response.body == std::string(file.begin, file.end), "the answer is the file");
    const std::string type = response.get_header_value("Content-Type");
    require(type == mimeTypeOf(isStart ? "dist/index.html" : "dist/" + path), "the type follows the name");
}

FUZZ_TARGET(embedded_path) {
    const std::string path = textOf(data, size);
    checkLookup(path);
    checkLookup("dist/" + path);
    checkAnswer(path);
    checkAnswer("/" + path);
    return 0;
}

}  // namespace fuzz_embedded_path
