#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "bridge/files/file_descriptor_linux.h"
#include "bridge/files/file_moves.h"

/// A new name is on the disk when its folder is. A folder that cannot be read, or flushed, must go without.
static void flushFolderOf(const std::filesystem::path& path) {
    const FileDescriptor folder(openFolderOf(path));
    if (folder.isOpen()) static_cast<void>(fsync(folder.number()));
}

bool replaceFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0) return false;
    flushFolderOf(to);
    return true;
}

static bool moveUnlessTaken(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
    if (errno != EINVAL && errno != ENOSYS) return false;
    // A file system that cannot do this at once, as over a network, gives the file a second name instead.
    return link(from.c_str(), to.c_str()) == 0 && unlink(from.c_str()) == 0;
}

MoveResult moveToNewName(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (!moveUnlessTaken(from, to)) return errno == EEXIST ? MoveResult::taken : MoveResult::refused;
    flushFolderOf(to);
    return MoveResult::moved;
}

bool removeFile(const std::filesystem::path& path) { return unlink(path.c_str()) == 0 || errno == ENOENT; }
