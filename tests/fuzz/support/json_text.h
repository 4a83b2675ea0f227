// JSON strings as a page reads and writes them, apart from the host's own parser (which reads some escaped pairs above
// U+FFFF as U+FFFD; a page never escapes them).
#pragma once
#include <cstdlib>
#include <string>

#include "support/require.h"
#include "support/utf8_reference.h"

inline char32_t hexUnitAt(const std::string& json, std::size_t at) {
    require(at + 4 <= json.size(), "an escape has four digits");
    char32_t unit = 0;
    for (const char c : json.substr(at, 4)) {
        const std::size_t digit = std::string("0123456789abcdef").find(c);
        require(digit != std::string::npos, "an escape's digits are hexadecimal");
        unit = unit * 16 + static_cast<char32_t>(digit);
    }
    return unit;
}

inline char32_t shortEscape(char letter) {
    switch (letter) {
        case 'b': return '\b';
        case 'f': return '\f';
        case 'n': return '\n';
        case 'r': return '\r';
        case 't': return '\t';
        default:
            require(letter == '"' || letter == '\\' || letter == '/', "an escape is one that JSON knows");
            return static_cast<unsigned char>(letter);
    }
}

/// The text that the JSON string at `at` stands for, in UTF-8; moves `at` behind it. The JSON must be ASCII.
inline std::string readJsonString(const std::string& json, std::size_t& at) {
    require(at < json.size() && json[at] == '"', "a string begins with a quote");
    std::u32string points;
    char32_t high = 0;
    for (++at; at < json.size() && json[at] != '"'; ++at) {
        char32_t unit = static_cast<unsigned char>(json[at]);
        require(unit >= 0x20 && unit < 0x7F, "a string is printable ASCII");
        if (unit == '\\') {
            require(++at < json.size(), "an escape is whole");
            if (json[at] == 'u') unit = hexUnitAt(json, at + 1), at += 4;
            else unit = shortEscape(json[at]);
        }
        const bool isLow = unit >= 0xDC00 && unit < 0xE000;
        require(isLow == (high != 0), "surrogates come in pairs");
        if (isLow) points += 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00);
        high = unit >= 0xD800 && unit < 0xDC00 ? unit : 0;
        if (!isLow && high == 0) points += unit;
    }
    require(high == 0, "surrogates come in pairs");
    require(at < json.size(), "a string ends with a quote");
    ++at;
    return encoded(points);
}

/// `text` as JSON.stringify writes it: only quotes, backslashes and control characters are escaped.
inline std::string writtenByAPage(const std::string& text) {
    std::string json = "\"";
    for (const char c : repaired(text)) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20) {
            json += std::string("\\u00") + "0123456789abcdef"[byte >> 4] + "0123456789abcdef"[byte & 15];
            continue;
        }
        if (c == '"' || c == '\\') json += '\\';
        json += c;
    }
    return json + '"';
}
