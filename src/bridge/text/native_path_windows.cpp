#include <windows.h>

#include <cstddef>

#include "bridge/text/native_path.h"
#include "bridge/text/utf16_windows.h"

// The code page of the C runtime's narrow file functions.
static UINT fileCodePage() { return AreFileApisANSI() ? CP_ACP : CP_OEMCP; }

std::filesystem::path pathFromNarrow(const std::string& narrow) {
    const int length = static_cast<int>(narrow.size());
    const int size = MultiByteToWideChar(fileCodePage(), 0, narrow.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(fileCodePage(), 0, narrow.data(), length, wide.data(), size);
    return wide;
}

std::string narrowFromPath(const std::filesystem::path& path) {
    const std::wstring& wide = path.native();
    const int length = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(fileCodePage(), 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(fileCodePage(), 0, wide.data(), length, narrow.data(), size, nullptr, nullptr);
    return narrow;
}

std::string utf8FromPath(const std::filesystem::path& path) { return utf8FromUtf16(path.c_str()); }
