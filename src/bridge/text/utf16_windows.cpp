#include "bridge/text/utf16_windows.h"

#include <windows.h>

#include <cstddef>

std::wstring utf16FromUtf8(std::string_view utf8) {
    const int length = static_cast<int>(utf8.size());
    const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, text.data(), size);
    return text;
}

std::string utf8FromUtf16(const wchar_t* utf16) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, utf16, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1) return {};
    std::string text(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, utf16, -1, text.data(), size, nullptr, nullptr);
    text.pop_back();
    return text;
}
