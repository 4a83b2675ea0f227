#include "bridge/text/native_path.h"

std::filesystem::path pathFromNarrow(const std::string& narrow) { return narrow; }

std::string narrowFromPath(const std::filesystem::path& path) { return path.string(); }

std::string utf8FromPath(const std::filesystem::path& path) { return path.string(); }
