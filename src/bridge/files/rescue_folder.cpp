#include "bridge/files/rescue_folder.h"

#include <algorithm>
#include <system_error>

#include "bridge/files/file_moves.h"
#include "bridge/files/text_mode.h"
#include "bridge/files/whole_file.h"

namespace fs = std::filesystem;

static const fs::path incompleteExtension = ".incomplete";

static bool isNameOfText(const fs::path& name) {
    return !name.empty() && name == name.filename() && name != "." && name != ".." &&
           name.extension() != incompleteExtension;
}

std::optional<fs::path> RescueFolder::write(const fs::path& name, const std::string& text) const {
    if (path_.empty() || !isNameOfText(name) || !makePrivateFolder(path_)) return std::nullopt;
    const fs::path complete = path_ / name;
    const WholeFile file{.path = complete, .incomplete = withEnding(complete, incompleteExtension)};
    if (writeWholeFile(file, diskBytesOf(text)).result != WriteResult::written) return std::nullopt;
    return complete;
}

std::optional<fs::path> RescueFolder::writeNew(const fs::path& stem, const fs::path& extension,
                                               const std::string& text) const {
    std::error_code unknown;
    fs::path name = withEnding(stem, extension);
    for (int number = 2; fs::exists(fs::symlink_status(path_ / name, unknown)); ++number) {
        name = withEnding(withEnding(stem, " " + std::to_string(number)), extension);
    }
    return write(name, text);
}

void RescueFolder::remove(const fs::path& name) const {
    if (!isNameOfText(name) || !isOwnFolder(path_)) return;
    removeFile(path_ / name);
    removeFile(withEnding(path_ / name, incompleteExtension));
}

std::vector<RescuedText> RescueFolder::list() const {
    std::vector<RescuedText> texts;
    if (!isOwnFolder(path_)) return texts;
    std::error_code failure;
    for (fs::directory_iterator entry(path_, failure), end; !failure && entry != end; entry.increment(failure)) {
        if (!isNameOfText(entry->path().filename())) continue;
        if (const auto written = timeOfFile(entry->path())) texts.push_back({entry->path(), *written});
    }
    std::sort(texts.begin(), texts.end(), [](const auto& one, const auto& other) { return one.path < other.path; });
    return texts;
}
