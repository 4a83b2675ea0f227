// text.h: between the runtime's UTF-16 and the driver's UTF-8.
#pragma once
#include <string>

[[nodiscard]] std::wstring utf16(const std::string& utf8);

/// `text` may be null, which gives "(null)".
[[nodiscard]] std::string utf8(const wchar_t* text);
