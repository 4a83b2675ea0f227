#include "server/static_assets.h"

#include <exception>
#include <string>

#include "server/mime_types.h"

static std::string storePath(const std::string& requestPath) {
    if (requestPath.empty() || requestPath == "/") return "dist/index.html";
    return "dist/" + (requestPath.front() == '/' ? requestPath.substr(1) : requestPath);
}

bool isServed(const EmbeddedFilesystem& files, std::string_view path) {
    const EmbeddedEntry* const entry = files.findEntry(storePath(std::string(path)));
    return entry != nullptr && entry->isFile();
}

void serveEmbeddedFile(const EmbeddedFilesystem& files, const httplib::Request& request, httplib::Response& response) {
    try {
        const std::string path = storePath(request.path);
        const EmbeddedFile file = files.openEmbedded(path);
        response.set_content(std::string(file.begin(), file.end()), mimeTypeOf(path));
    } catch (const std::exception&) {
        response.status = 404;
        response.set_content("Not Found", "text/plain");
    }
}
