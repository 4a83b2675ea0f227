// Files whose bytes are known to be on the disk, for recovery files that outlive a cut-off save. All functions
// block until the system has written.
#pragma once
#include <filesystem>
#include <string>

enum class WriteResult {
    written,     ///< the file is whole and on the disk
    notCreated,  ///< the folder takes no file of this name; nothing was left behind
    ioError,     ///< the disk or a quota is full, or failed; nothing was left behind
};

/// Writes `content` in text mode to a file that only this user may read, in place of whatever had the name before.
[[nodiscard]] WriteResult writeNewFile(const std::filesystem::path& path, const std::string& content);

/// Gives the file `from` the name `to`, at once and in place of the file that had it. False when the system refused.
[[nodiscard]] bool replaceFile(const std::filesystem::path& from, const std::filesystem::path& to);

/// Waits until all that was written to the file is on the disk. False when that failed.
[[nodiscard]] bool flushFile(const std::filesystem::path& path);

/// Removes a file if it is there.
void removeFile(const std::filesystem::path& path);
