#include "bridge/files/regular_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <thread>
#include <utility>
#include <vector>

#include "bridge/files/file_descriptor_linux.h"

static constexpr std::chrono::milliseconds betweenTries{5};
static constexpr mode_t everybody = S_IRWXU | S_IRWXG | S_IRWXO;
static constexpr uid_t keepOwner = static_cast<uid_t>(-1);
static constexpr const char* accessList = "system.posix_acl_access";

struct RegularFile::Handle {
    explicit Handle(int number) : file(number) {}

    [[nodiscard]] struct stat status() const {
        struct stat status{};
        if (fstat(file.number(), &status) != 0) status = {};
        return status;
    }

    FileDescriptor file;
};

RegularFile::RegularFile(std::unique_ptr<Handle> handle, std::error_code error)
    : handle_(std::move(handle)), error_(error) {}

RegularFile::RegularFile(RegularFile&&) noexcept = default;
RegularFile& RegularFile::operator=(RegularFile&&) noexcept = default;
RegularFile::~RegularFile() = default;

static std::error_code lastError() { return {errno, std::system_category()}; }

bool RegularFile::fail() {
    error_ = lastError();
    return false;
}

// Opening a pipe would wait for its other end, and closing a terminal could hang up.
static constexpr int always = O_CLOEXEC | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW;

RegularFile RegularFile::open(const std::filesystem::path& path, Access access) {
    const bool writes = access == Access::readAndWrite;
    int number = ::open(path.c_str(), always | (writes ? O_RDWR : O_RDONLY));
    if (number < 0 && writes && errno == EACCES) number = ::open(path.c_str(), always | O_WRONLY);
    if (number < 0) return {nullptr, lastError()};
    auto handle = std::make_unique<Handle>(number);
    const mode_t mode = handle->status().st_mode;
    if (S_ISREG(mode)) return {std::move(handle), {}};
    return {nullptr, {S_ISDIR(mode) ? EISDIR : EINVAL, std::system_category()}};
}

RegularFile RegularFile::create(const std::filesystem::path& path, NewFile kind) {
    const mode_t ordinary = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    const mode_t mode = kind == NewFile::ordinary ? ordinary : S_IRUSR | S_IWUSR;
    // Exclusive: in a folder that others may write to, a link with this name must not lead elsewhere.
    const int number = ::open(path.c_str(), always | O_RDWR | O_CREAT | O_EXCL, mode);
    if (number < 0) return {nullptr, lastError()};
    return {std::make_unique<Handle>(number), {}};
}

bool RegularFile::hasName(const std::filesystem::path& path) const {
    struct stat named{};
    const struct stat own = handle_->status();
    return lstat(path.c_str(), &named) == 0 && named.st_dev == own.st_dev && named.st_ino == own.st_ino;
}

static std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + std::int64_t{time.tv_nsec};
}

FileStamp RegularFile::stamp() const {
    const struct stat status = handle_->status();
    return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size), nanoseconds(status.st_mtim),
            nanoseconds(status.st_ctim)};
}

bool RegularFile::hasSeveralNames() const { return handle_->status().st_nlink > 1; }

bool RegularFile::hasSameOwnerAs(const RegularFile& other) const {
    return handle_->status().st_uid == other.handle_->status().st_uid;
}

RegularFile::Lock RegularFile::lock(std::chrono::milliseconds patience) const {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (flock(handle_->file.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) return Lock::none;
        if (std::chrono::steady_clock::now() >= end) return Lock::busy;
        std::this_thread::sleep_for(betweenTries);
    }
    return Lock::held;
}

/// The bits for a file whose owner or group is another one: those who now fall under other bits get no more than
/// before.
static mode_t narrowed(mode_t mode, bool sameOwner, bool sameGroup) {
    const mode_t user = (mode & S_IRWXU) >> 6U;
    mode_t group = (mode & S_IRWXG) >> 3U;
    mode_t others = mode & S_IRWXO;
    if (!sameGroup) group = others = group & others;
    if (!sameOwner) {
        group &= user;
        others &= user;
    }
    return (mode & S_IRWXU) | group << 3U | others;
}

// Says that there is nothing to remove, or that the file system has no such thing.
static bool saysNoAccessList(int error) { return error == ENODATA || error == EOPNOTSUPP; }

static bool hasAccessList(int file) { return fgetxattr(file, accessList, nullptr, 0) >= 0 || !saysNoAccessList(errno); }

static bool removeAccessList(int file) {
    // The folder may have given the new file one.
    return fremovexattr(file, accessList) == 0 || saysNoAccessList(errno);
}

/// The access of single users and groups, beside what the permission bits say.
static bool copyAccessList(int from, int to) {
    if (!hasAccessList(from)) return removeAccessList(to);
    std::vector<char> list(1 << 16);  // no attribute is longer
    const ssize_t size = fgetxattr(from, accessList, list.data(), list.size());
    return size >= 0 && fsetxattr(to, accessList, list.data(), static_cast<std::size_t>(size), 0) == 0;
}

void RegularFile::takeAccessOf(const RegularFile& other) {
    const struct stat wanted = other.handle_->status();
    const int from = other.handle_->file.number();
    const int to = handle_->file.number();
    // Nobody but its owner until all is as it shall be.
    if (fchmod(to, S_IRUSR | S_IWUSR) != 0) return;
    // Only root may give a file to another user; others may give theirs to a group that they are in.
    const bool given = fchown(to, wanted.st_uid, wanted.st_gid) == 0 || fchown(to, keepOwner, wanted.st_gid) == 0;
    const struct stat own = handle_->status();
    const bool sameOwner = given && own.st_uid == wanted.st_uid;
    const bool sameGroup = given && own.st_gid == wanted.st_gid;
    const bool sameList = sameOwner && sameGroup && copyAccessList(from, to);
    if (!sameList && (hasAccessList(from) || !removeAccessList(to))) return;
    static_cast<void>(fchmod(to, narrowed(wanted.st_mode & everybody, sameOwner, sameGroup)));
}

std::optional<std::string> RegularFile::bytes() {
    static constexpr std::size_t more = 1 << 16;
    std::string bytes(static_cast<std::size_t>(handle_->status().st_size) + 1, '\0');
    std::size_t length = 0;
    for (;;) {
        if (length == bytes.size()) bytes.resize(length + more);
        const ssize_t count =
            pread(handle_->file.number(), bytes.data() + length, bytes.size() - length, static_cast<off_t>(length));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) {
            fail();
            return std::nullopt;
        }
        if (count == 0) break;
        length += static_cast<std::size_t>(count);
    }
    bytes.resize(length);
    return bytes;
}

bool RegularFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(handle_->file.number(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count == 0) errno = EIO;
        if (count <= 0) return fail();
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool RegularFile::overwrite(std::string_view bytes) {
    const int file = handle_->file.number();
    if (ftruncate(file, 0) != 0 || lseek(file, 0, SEEK_SET) != 0) return fail();
    return write(bytes);
}

bool RegularFile::append(std::string_view bytes) {
    if (lseek(handle_->file.number(), 0, SEEK_END) < 0) return fail();
    return write(bytes);
}

bool RegularFile::flush() {
    const int file = handle_->file.number();
    // Some file systems have no way to flush one file and say so; that is not a failed write.
    const bool flushed = fsync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    if (!flushed) return fail();
    // Others report at the closing what they could not write. A second descriptor is closed, which leaves the lock.
    const int second = fcntl(file, F_DUPFD_CLOEXEC, 0);
    return second < 0 || close(second) == 0 || fail();
}

static bool isOneOf(const std::error_code& error, std::initializer_list<int> numbers) {
    return error.category() == std::system_category() &&
           std::find(numbers.begin(), numbers.end(), error.value()) != numbers.end();
}

bool saysMissing(const std::error_code& error) { return isOneOf(error, {ENOENT}); }

bool saysTaken(const std::error_code& error) { return isOneOf(error, {EEXIST}); }

bool saysFull(const std::error_code& error) { return isOneOf(error, {ENOSPC, EDQUOT, EFBIG}); }

std::string inTheSystemsWords(const std::error_code& error) { return error.message(); }
