#include <windows.h>
// windows.h must come first
#include <algorithm>
#include <array>
#include <initializer_list>
#include <thread>
#include <utility>
#include <vector>

#include "bridge/files/regular_file.h"
#include "bridge/text/utf16_windows.h"

static constexpr std::chrono::milliseconds betweenTries{5};
static constexpr DWORD sharedByAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

struct RegularFile::Handle {
    explicit Handle(HANDLE number) : file(number) {}
    ~Handle() { CloseHandle(file); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE file;
};

/// A part of the file's protection; empty when the system does not give it.
static std::vector<BYTE> protectionOf(HANDLE file, SECURITY_INFORMATION part) {
    DWORD size = 0;
    GetKernelObjectSecurity(file, part, nullptr, 0, &size);
    std::vector<BYTE> descriptor(size);
    if (GetKernelObjectSecurity(file, part, descriptor.data(), size, &size) == FALSE) descriptor.clear();
    return descriptor;
}

/// Points into `descriptor`; null when that has no owner.
static PSID ownerIn(std::vector<BYTE>& descriptor) {
    PSID owner = nullptr;
    BOOL byDefault = FALSE;
    if (descriptor.empty() || GetSecurityDescriptorOwner(descriptor.data(), &owner, &byDefault) == FALSE)
        return nullptr;
    return owner;
}

RegularFile::RegularFile(std::unique_ptr<Handle> handle, std::error_code error)
    : handle_(std::move(handle)), error_(error) {}

RegularFile::RegularFile(RegularFile&&) noexcept = default;
RegularFile& RegularFile::operator=(RegularFile&&) noexcept = default;
RegularFile::~RegularFile() = default;

static std::error_code systemError(DWORD number) { return {static_cast<int>(number), std::system_category()}; }

bool RegularFile::fail() {
    error_ = systemError(GetLastError());
    return false;
}

RegularFile RegularFile::open(const std::filesystem::path& path, Access access) {
    const bool writes = access == Access::readAndWrite;
    const DWORD wanted = writes ? GENERIC_READ | GENERIC_WRITE : GENERIC_READ;
    HANDLE file = CreateFileW(path.c_str(), wanted, sharedByAll, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE && writes && GetLastError() == ERROR_ACCESS_DENIED) {
        file = CreateFileW(path.c_str(), GENERIC_WRITE, sharedByAll, nullptr, OPEN_EXISTING, 0, nullptr);
    }
    if (file == INVALID_HANDLE_VALUE) return {nullptr, systemError(GetLastError())};
    auto handle = std::make_unique<Handle>(file);
    if (GetFileType(file) != FILE_TYPE_DISK) return {nullptr, systemError(ERROR_INVALID_NAME)};
    return {std::move(handle), {}};
}

RegularFile RegularFile::create(const std::filesystem::path& path, NewFile) {
    const DWORD wanted = GENERIC_READ | GENERIC_WRITE | WRITE_DAC | DELETE;
    const HANDLE file =
        CreateFileW(path.c_str(), wanted, sharedByAll, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {nullptr, systemError(GetLastError())};
    return {std::make_unique<Handle>(file), {}};
}

static std::uint64_t joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; }

static FileStamp stampOf(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION status{};
    if (GetFileInformationByHandle(file, &status) == FALSE) return {};
    const auto& time = status.ftLastWriteTime;
    return {status.dwVolumeSerialNumber, joined(status.nFileIndexHigh, status.nFileIndexLow),
            joined(status.nFileSizeHigh, status.nFileSizeLow),
            static_cast<std::int64_t>(joined(time.dwHighDateTime, time.dwLowDateTime)), 0};
}

bool RegularFile::hasName(const std::filesystem::path& path) const {
    const HANDLE named = CreateFileW(path.c_str(), 0, sharedByAll, nullptr, OPEN_EXISTING, 0, nullptr);
    if (named == INVALID_HANDLE_VALUE) return false;
    const FileStamp there = stampOf(named);
    CloseHandle(named);
    const FileStamp own = stamp();
    return there.device == own.device && there.number == own.number;
}

FileStamp RegularFile::stamp() const { return stampOf(handle_->file); }

bool RegularFile::hasSeveralNames() const {
    BY_HANDLE_FILE_INFORMATION status{};
    return GetFileInformationByHandle(handle_->file, &status) != FALSE && status.nNumberOfLinks > 1;
}

bool RegularFile::hasSameOwnerAs(const RegularFile& other) const {
    auto own = protectionOf(handle_->file, OWNER_SECURITY_INFORMATION);
    auto others = protectionOf(other.handle_->file, OWNER_SECURITY_INFORMATION);
    const PSID owner = ownerIn(own);
    const PSID otherOwner = ownerIn(others);
    return owner != nullptr && otherOwner != nullptr && EqualSid(owner, otherOwner) != FALSE;
}

RegularFile::Lock RegularFile::lock(std::chrono::milliseconds patience) const {
    // A byte far beyond all that is ever written: a lock on any other would keep programs from reading the file.
    OVERLAPPED place{};
    place.OffsetHigh = 0x40000000;
    const auto end = std::chrono::steady_clock::now() + patience;
    const DWORD how = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
    while (LockFileEx(handle_->file, how, 0, 1, 0, &place) == FALSE) {
        const DWORD error = GetLastError();
        if (error != ERROR_LOCK_VIOLATION && error != ERROR_IO_PENDING) return Lock::none;
        if (std::chrono::steady_clock::now() >= end) return Lock::busy;
        std::this_thread::sleep_for(betweenTries);
    }
    return Lock::held;
}

void RegularFile::takeAccessOf(const RegularFile& other) {
    auto access = protectionOf(other.handle_->file, DACL_SECURITY_INFORMATION);
    if (access.empty()) return;
    // What the folder grants to new files is not granted beside it.
    SetKernelObjectSecurity(handle_->file, DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                            access.data());
}

static bool seek(HANDLE file, DWORD from) { return SetFilePointerEx(file, LARGE_INTEGER{}, nullptr, from) != FALSE; }

std::optional<std::string> RegularFile::bytes() {
    static constexpr std::size_t atOnce = 1 << 20;
    std::string bytes;
    bytes.reserve(stamp().size);
    if (!seek(handle_->file, FILE_BEGIN)) {
        fail();
        return std::nullopt;
    }
    for (;;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + atOnce);
        DWORD count = 0;
        if (ReadFile(handle_->file, bytes.data() + before, atOnce, &count, nullptr) == FALSE) {
            fail();
            return std::nullopt;
        }
        bytes.resize(before + count);
        if (count == 0) return bytes;
    }
}

bool RegularFile::write(std::string_view bytes) {
    static constexpr std::size_t atOnce = 1 << 20;
    while (!bytes.empty()) {
        const auto length = static_cast<DWORD>(std::min(bytes.size(), atOnce));
        DWORD count = 0;
        if (WriteFile(handle_->file, bytes.data(), length, &count, nullptr) == FALSE) return fail();
        if (count == 0) {
            error_ = systemError(ERROR_DISK_FULL);
            return false;
        }
        bytes.remove_prefix(count);
    }
    return true;
}

bool RegularFile::overwrite(std::string_view bytes) {
    if (!seek(handle_->file, FILE_BEGIN) || SetEndOfFile(handle_->file) == FALSE) return fail();
    return write(bytes);
}

bool RegularFile::append(std::string_view bytes) {
    if (!seek(handle_->file, FILE_END)) return fail();
    return write(bytes);
}

bool RegularFile::flush() { return FlushFileBuffers(handle_->file) != FALSE || fail(); }

static bool isOneOf(const std::error_code& error, std::initializer_list<DWORD> numbers) {
    const auto number = static_cast<DWORD>(error.value());
    return error.category() == std::system_category() &&
           std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

bool saysMissing(const std::error_code& error) { return isOneOf(error, {ERROR_FILE_NOT_FOUND}); }

bool saysTaken(const std::error_code& error) { return isOneOf(error, {ERROR_FILE_EXISTS, ERROR_ALREADY_EXISTS}); }

bool saysFull(const std::error_code& error) {
    static constexpr DWORD quotaExceeded = 1295;  // the headers of mingw-w64 lack it
    return isOneOf(error, {ERROR_DISK_FULL, ERROR_HANDLE_DISK_FULL, quotaExceeded});
}

std::string inTheSystemsWords(const std::error_code& error) {
    std::array<wchar_t, 512> words{};
    const DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    const auto number = static_cast<DWORD>(error.value());
    const DWORD length = FormatMessageW(flags, nullptr, number, 0, words.data(), words.size(), nullptr);
    if (length == 0) return "error " + std::to_string(number);
    std::string text = utf8FromUtf16(words.data());
    while (!text.empty() && (text.back() == ' ' || text.back() == '.')) text.pop_back();
    return text;
}
