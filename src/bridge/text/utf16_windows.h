// Text for the system's wide calls.
#pragma once
#include <string>
#include <string_view>

/// The whole text, with the NULs in it; ill-formed bytes become U+FFFD.
[[nodiscard]] std::wstring utf16FromUtf8(std::string_view utf8);
/// Up to the first NUL of `utf16`, which is borrowed and must have one.
[[nodiscard]] std::string utf8FromUtf16(const wchar_t* utf16);
