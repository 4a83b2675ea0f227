#include "bridge/files/rescue_folder.h"

#include <windows.h>
// windows.h must come first
#include <aclapi.h>
#include <sddl.h>

#include <cstddef>
#include <memory>
#include <string>

namespace fs = std::filesystem;

namespace {
struct LocalRelease {
    void operator()(void* memory) const { LocalFree(memory); }
};
template <typename Object>
using OwnedLocal = std::unique_ptr<Object, LocalRelease>;

/// One of the process's identities, as the system describes it: TokenUser or TokenOwner.
class Identity {
public:
    explicit Identity(TOKEN_INFORMATION_CLASS kind) {
        HANDLE token = nullptr;
        if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) == FALSE) return;
        DWORD size = 0;
        GetTokenInformation(token, kind, nullptr, 0, &size);
        bytes_ = std::make_unique<std::byte[]>(size);
        if (GetTokenInformation(token, kind, bytes_.get(), size, &size) == FALSE) bytes_.reset();
        CloseHandle(token);
    }

    /// Null when the system does not say.
    [[nodiscard]] PSID sid() const {
        // Both descriptions begin with it.
        return bytes_ ? reinterpret_cast<const TOKEN_OWNER*>(bytes_.get())->Owner : nullptr;
    }

private:
    std::unique_ptr<std::byte[]> bytes_;
};
}  // namespace

fs::path userRescueFolder() {
    wchar_t folder[MAX_PATH] = {};
    const DWORD length = GetEnvironmentVariableW(L"LOCALAPPDATA", folder, MAX_PATH);
    const fs::path local = length < MAX_PATH ? fs::path(folder) : fs::path();
    return local.is_absolute() ? local / L"Tessary" : fs::path();
}

/// Full access for this user, also to what is put inside; nothing for others, whatever the folder above grants.
static OwnedLocal<void> accessForOwnerOnly() {
    const Identity user(TokenUser);
    LPWSTR name = nullptr;
    if (user.sid() == nullptr || ConvertSidToStringSidW(user.sid(), &name) == FALSE) return nullptr;
    const OwnedLocal<wchar_t> owned(name);
    const std::wstring rules = std::wstring(L"D:P(A;OICI;FA;;;") + name + L")";
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(rules.c_str(), SDDL_REVISION_1, &descriptor, nullptr);
    return OwnedLocal<void>(descriptor);
}

bool makePrivateFolder(const fs::path& path) {
    const OwnedLocal<void> access = accessForOwnerOnly();
    if (!access) return false;
    std::error_code ignored;
    fs::create_directories(path.parent_path(), ignored);
    SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), access.get(), FALSE};
    if (CreateDirectoryW(path.c_str(), &attributes) != FALSE) return true;
    if (!isOwnFolder(path)) return false;
    return SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                            access.get()) != FALSE;
}

bool isOwnFolder(const fs::path& path) {
    const DWORD kind = GetFileAttributesW(path.c_str());
    if (kind == INVALID_FILE_ATTRIBUTES || (kind & FILE_ATTRIBUTE_DIRECTORY) == 0) return false;
    if ((kind & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return false;
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const DWORD outcome = GetNamedSecurityInfoW(path.c_str(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                                                nullptr, nullptr, nullptr, &descriptor);
    const OwnedLocal<void> owned(descriptor);
    if (outcome != ERROR_SUCCESS || owner == nullptr) return false;
    // What an administrator makes is owned by the administrators' group: the process's default owner.
    const Identity user(TokenUser);
    const Identity usual(TokenOwner);
    return (user.sid() != nullptr && EqualSid(owner, user.sid()) != FALSE) ||
           (usual.sid() != nullptr && EqualSid(owner, usual.sid()) != FALSE);
}

std::optional<std::chrono::system_clock::time_point> timeOfFile(const fs::path& path) {
    WIN32_FILE_ATTRIBUTE_DATA file{};
    if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &file) == FALSE) return std::nullopt;
    if ((file.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) != 0) return std::nullopt;
    // In steps of 100 ns since 1601.
    static constexpr std::uint64_t stepsUntil1970 = 116444736000000000;
    const std::uint64_t steps =
        (std::uint64_t{file.ftLastWriteTime.dwHighDateTime} << 32) | file.ftLastWriteTime.dwLowDateTime;
    using Steps = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
    const Steps since1970(static_cast<std::int64_t>(steps - stepsUntil1970));
    return std::chrono::system_clock::time_point(
        std::chrono::duration_cast<std::chrono::system_clock::duration>(since1970));
}
