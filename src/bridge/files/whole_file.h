// Files that are whole whenever they are there: they grow under another name, are flushed, and get their own name at
// last.
#pragma once
#include <filesystem>
#include <string_view>
#include <system_error>

#include "bridge/files/regular_file.h"

/// No save waits longer than this for another one: a program that hangs must not keep others from saving.
inline constexpr std::chrono::milliseconds saveLockPatience{2000};

struct WholeFile {
    std::filesystem::path path;
    std::filesystem::path incomplete;  ///< its name while it grows; what a program that was killed left there goes
    const RegularFile* accessLike = nullptr;                       ///< a file that has the permissions for it; borrowed
    RegularFile::NewFile kind = RegularFile::NewFile::ownersOnly;  ///< without such a file
    bool replaces = true;                                          ///< what has the name by then
};

enum class WriteResult {
    written,    ///< the file is whole and on the disk
    nameTaken,  ///< only with `replaces` false
    refused,    ///< the folder takes no file of this name, or the name is too long
    ioError,    ///< the disk or a quota is full, or failed
};

/// What became of it. Unless it was written nothing is left behind, and `error` has the reason.
struct WriteOutcome {
    WriteResult result;
    std::error_code error;
    FileStamp stamp;  ///< of the file that was written, before it got its name
};

/// Blocks until the file is on the disk. Programs that write files of one name wait for each other.
[[nodiscard]] WriteOutcome writeWholeFile(const WholeFile& file, std::string_view bytes);

/// `path` with `ending` at its end.
[[nodiscard]] inline std::filesystem::path withEnding(std::filesystem::path path, const std::filesystem::path& ending) {
    return path += ending;
}
