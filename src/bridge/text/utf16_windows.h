// src/bridge/text/utf16_windows.h: text for the system's wide calls.
#pragma once
#include <string>

/// Up to the first NUL of `utf8`; ill-formed bytes become U+FFFD.
[[nodiscard]] std::wstring utf16FromUtf8(const std::string& utf8);
/// Up to the first NUL of `utf16`, which is borrowed and must have one.
[[nodiscard]] std::string utf8FromUtf16(const wchar_t* utf16);
