// Which content type the server gives to which file.
#pragma once
#include <string>
#include <unordered_map>

/// From an extension, with its dot and in lower case, to a MIME type.
extern const std::unordered_map<std::string, std::string> mimeTypes;

/// The MIME type for a tree path such as "dist/index.html"; "application/octet-stream" when its extension is not known.
[[nodiscard]] std::string mimeTypeOf(const std::string& path);
