// What has to happen to text before it may enter the page.
#pragma once
#include <string>
#include <string_view>

/// The text with every byte that is not part of well-formed UTF-8 replaced by U+FFFD (the Unicode Standard's
/// "substitution of maximal subparts"). The web view drops or refuses text that is not well-formed.
[[nodiscard]] std::string wellFormedUtf8(std::string_view text);

/// A JSON text in plain ASCII that `JSON.parse` turns into the same value: every code point from U+007F on becomes a
/// \u escape, two of them above U+FFFF, and ill-formed bytes become \ufffd. `json` must be a JSON text whose
/// non-ASCII characters stand inside strings. The web-view library mangles replies that hold other bytes.
[[nodiscard]] std::string asciiJson(std::string_view json);
