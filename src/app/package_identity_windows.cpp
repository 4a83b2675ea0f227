#include <windows.h>

#include <exception>

#include "app/host_scripts.h"
#include "bridge/text/utf16_windows.h"

// Declared in <appmodel.h>, which mingw-w64 lacks.
extern "C" WINBASEAPI LONG WINAPI GetCurrentPackageFullName(UINT32* packageFullNameLength, PWSTR packageFullName);

static std::optional<std::string> packageFullName() {
    UINT32 length = 0;
    const LONG first = GetCurrentPackageFullName(&length, nullptr);
    if (first != ERROR_INSUFFICIENT_BUFFER || length == 0) return std::nullopt;
    std::wstring name(length, L'\0');
    if (GetCurrentPackageFullName(&length, name.data()) != ERROR_SUCCESS) return std::nullopt;
    return utf8FromUtf16(name.c_str());
}

std::optional<std::string> currentPackageFullName() {
    try {
        return packageFullName();
    } catch (const std::exception&) {
        return std::nullopt;
    }
}
