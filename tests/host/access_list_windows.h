// Who may use a file or folder, in the system's notation: "WD" stands for everyone, "BU" for all users.
#pragma once
#include <windows.h>
// windows.h must come first
#include <sddl.h>

#include <filesystem>
#include <string>

inline std::wstring accessOf(const std::filesystem::path& path) {
    BYTE descriptor[4096];
    DWORD size = 0;
    if (GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, descriptor, sizeof descriptor, &size) == FALSE) {
        return {};
    }
    LPWSTR text = nullptr;
    ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text,
                                                         nullptr);
    std::wstring rules = text == nullptr ? L"" : text;
    LocalFree(text);
    return rules;
}

inline void giveAccessOf(const std::filesystem::path& from, const std::filesystem::path& to) {
    BYTE descriptor[4096];
    DWORD size = 0;
    if (GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, descriptor, sizeof descriptor, &size) == FALSE)
        return;
    SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, descriptor);
}
