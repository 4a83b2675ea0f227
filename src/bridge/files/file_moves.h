// Names of files, changed so that a power cut leaves the old state or the new one. All functions block until the system
// has done its work.
#pragma once
#include <filesystem>

/// Gives the file `from` the name `to`, at once and in place of the file that had it. False when the system refused.
[[nodiscard]] bool replaceFile(const std::filesystem::path& from, const std::filesystem::path& to);

enum class MoveResult {
    moved,
    taken,    ///< something has the new name, and keeps it
    refused,  ///< by the system
};

/// Gives the file `from` the name `to` unless that is taken.
[[nodiscard]] MoveResult moveToNewName(const std::filesystem::path& from, const std::filesystem::path& to);

/// Removes a file, or a link. False when it is still there.
bool removeFile(const std::filesystem::path& path);
