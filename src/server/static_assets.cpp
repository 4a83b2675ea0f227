#include "server/static_assets.h"

#include <exception>
#include <string>

#include "server/mime_types.h"

static std::string storePath(const std::string& requestPath) {
    if (requestPath.empty() || requestPath == "/") return "dist/index.html";
    return "dist/" + (requestPath.front() == '/' ? requestPath.substr(1) : requestPath);
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
