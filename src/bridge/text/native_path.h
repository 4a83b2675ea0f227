// Between the narrow strings of the process (argument vector, bridge paths) and file-system paths. Narrow means the
// file-system code page: the ANSI code page on Windows, plain bytes elsewhere.
#pragma once
#include <filesystem>
#include <string>

[[nodiscard]] std::filesystem::path pathFromNarrow(const std::string& narrow);
/// Characters that the code page lacks are replaced.
[[nodiscard]] std::string narrowFromPath(const std::filesystem::path& path);
/// For the log and the page.
[[nodiscard]] std::string utf8FromPath(const std::filesystem::path& path);
