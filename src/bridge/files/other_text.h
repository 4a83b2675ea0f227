// The text that another program has put into a document, kept beside it before a save replaces it.
#pragma once
#include <filesystem>
#include <system_error>

#include "bridge/files/regular_file.h"
#include "bridge/files/rescue_folder.h"

/// Where it is; with an empty path it could not be kept, and `error` has the reason.
struct KeptText {
    std::filesystem::path path;
    std::error_code error;
};

/// Copies the document to "NAME.before-save", or "NAME.before-save.1" and so on when that is taken, with the document's
/// permissions; into the rescue folder when there is no place beside it.
[[nodiscard]] KeptText keepBeside(const std::filesystem::path& path, RegularFile& document, const RescueFolder& rescue);
