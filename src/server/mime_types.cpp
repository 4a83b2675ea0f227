#include "server/mime_types.h"

#include <filesystem>

// Web-app manifests, plain texts and source maps are left out on purpose: they go out as octet streams.
const std::unordered_map<std::string, std::string> mimeTypes = {
    {".html", "text/html"},   {".htm", "text/html"},         {".js", "application/javascript"},
    {".css", "text/css"},     {".json", "application/json"}, {".svg", "image/svg+xml"},
    {".png", "image/png"},    {".jpg", "image/jpeg"},        {".jpeg", "image/jpeg"},
    {".gif", "image/gif"},    {".ico", "image/x-icon"},      {".woff", "font/woff"},
    {".woff2", "font/woff2"}, {".ttf", "font/ttf"},          {".eot", "application/vnd.ms-fontobject"},
    {".otf", "font/otf"},
};

std::string mimeTypeOf(const std::string& path) {
    const auto found = mimeTypes.find(std::filesystem::path(path).extension().string());
    return found == mimeTypes.end() ? "application/octet-stream" : found->second;
}
