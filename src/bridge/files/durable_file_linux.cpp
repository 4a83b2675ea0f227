#include "bridge/files/durable_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string_view>

#include "bridge/files/file_descriptor_linux.h"

static bool write(const FileDescriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file.number(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

static bool flush(const FileDescriptor& file) {
    // Some file systems have no way to flush one file and say so; that is not a failed write.
    return fsync(file.number()) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

static bool isFull(int error) { return error == ENOSPC || error == EDQUOT; }

WriteResult writeNewFile(const std::filesystem::path& path, const std::string& content) {
    removeFile(path);
    // Exclusive: in a folder that others may write to, a link with this name must not lead elsewhere.
    const FileDescriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file.isOpen()) return isFull(errno) ? WriteResult::ioError : WriteResult::notCreated;
    if (write(file, content) && flush(file)) return WriteResult::written;
    removeFile(path);
    return WriteResult::ioError;
}

bool replaceFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0) return false;
    // The new name is on the disk when the folder is. A folder that cannot be read must go without.
    const FileDescriptor folder(openFolderOf(to));
    return !folder.isOpen() || flush(folder);
}

bool flushFile(const std::filesystem::path& path) {
    const FileDescriptor file(open(path.c_str(), O_WRONLY | O_CLOEXEC));
    return file.isOpen() && flush(file);
}

void removeFile(const std::filesystem::path& path) { unlink(path.c_str()); }
