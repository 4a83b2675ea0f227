// Answers page requests from the embedded tree.
#pragma once
#include <httplib.h>

#include <string_view>

#include "server/embedded_filesystem.h"

/// Whether requests for this path, without query, are answered with a file.
[[nodiscard]] bool isServed(const EmbeddedFilesystem& files, std::string_view path);

/// Answers `request` with the file under "dist/" that its decoded path names ("/" names "/index.html"), or with
/// status 404. Looks at nothing but the path. Runs on any thread and never throws a standard exception.
void serveEmbeddedFile(const EmbeddedFilesystem& files, const httplib::Request& request, httplib::Response& response);
