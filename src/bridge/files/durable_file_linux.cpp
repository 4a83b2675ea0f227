#include "bridge/files/durable_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <string_view>

namespace {
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (isOpen()) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] bool write(std::string_view bytes) const;
    [[nodiscard]] bool flush() const;

private:
    int number_;
};
}  // namespace

bool Descriptor::write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t count = ::write(number_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool Descriptor::flush() const {
    // Some file systems have no way to flush one file and say so; that is not a failed write.
    return fsync(number_) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

static bool isFull(int error) { return error == ENOSPC || error == EDQUOT; }

NewFile writeNewFile(const std::string& path, const std::string& content) {
    removeFile(path);
    // Exclusive: in a folder that others may write to, a link with this name must not lead elsewhere.
    const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file.isOpen()) return isFull(errno) ? NewFile::cutShort : NewFile::notCreated;
    if (file.write(content) && file.flush()) return NewFile::written;
    removeFile(path);
    return NewFile::cutShort;
}

bool replaceFile(const std::string& from, const std::string& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0) return false;
    // The new name is on the disk when the folder is. A folder that cannot be read must go without.
    const std::filesystem::path folder = std::filesystem::path(to).parent_path();
    const Descriptor names(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return !names.isOpen() || names.flush();
}

bool flushFile(const std::string& path) {
    const Descriptor file(open(path.c_str(), O_WRONLY | O_CLOEXEC));
    return file.isOpen() && file.flush();
}

void removeFile(const std::string& path) { unlink(path.c_str()); }
