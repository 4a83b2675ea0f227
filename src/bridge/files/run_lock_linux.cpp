#include <sys/file.h>
#include <sys/stat.h>

#include "bridge/files/file_descriptor_linux.h"
#include "bridge/files/run_lock.h"

/// Another run may have removed the file, or put another in its place, between opening and locking it.
static bool isAt(const std::filesystem::path& path, const FileDescriptor& file) {
    struct stat there{};
    struct stat here{};
    return fstat(file.number(), &here) == 0 && lstat(path.c_str(), &there) == 0 && here.st_ino == there.st_ino &&
           here.st_dev == there.st_dev;
}

RunLock takeRunLock(const std::filesystem::path& path) {
    const int flags = O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC;
    auto file = std::make_unique<FileDescriptor>(open(path.c_str(), flags, S_IRUSR | S_IWUSR));
    if (!file->isOpen() || flock(file->number(), LOCK_EX | LOCK_NB) != 0 || !isAt(path, *file)) return nullptr;
    return {file.release(), [path](const FileDescriptor* held) {
                unlink(path.c_str());
                delete held;
            }};
}
