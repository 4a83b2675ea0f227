// A second, plain way to read UTF-8, to compare the program's own with.
#pragma once
#include <string>
#include <string_view>

/// The text as a browser reads it: the "UTF-8 decoder" of the WHATWG Encoding Standard, errors written as U+FFFD.
inline std::u32string decodedAsBrowsersDo(std::string_view text) {
    std::u32string points;
    char32_t point = 0;
    int needed = 0;
    int seen = 0;
    unsigned lower = 0x80;
    unsigned upper = 0xBF;
    for (std::size_t i = 0; i < text.size();) {
        const unsigned byte = static_cast<unsigned char>(text[i]);
        if (needed == 0) {
            ++i;
            if (byte < 0x80) points += byte;
            else if (byte >= 0xC2 && byte <= 0xDF) needed = 1, point = byte & 0x1F;
            else if (byte >= 0xE0 && byte <= 0xEF) needed = 2, point = byte & 0xF;
            else if (byte >= 0xF0 && byte <= 0xF4) needed = 3, point = byte & 0x7;
            else points += U'\uFFFD';
            if (byte == 0xE0) lower = 0xA0;
            if (byte == 0xED) upper = 0x9F;
            if (byte == 0xF0) lower = 0x90;
            if (byte == 0xF4) upper = 0x8F;
            continue;
        }
        const bool fits = byte >= lower && byte <= upper;
        lower = 0x80;
        upper = 0xBF;
        if (!fits) {
            points += U'\uFFFD';
            needed = seen = 0;
            continue;  // the byte is read again, as a first one
        }
        ++i;
        point = (point << 6) | (byte & 0x3F);
        if (++seen < needed) continue;
        points += point;
        needed = seen = 0;
    }
    if (needed != 0) points += U'\uFFFD';
    return points;
}

inline std::string encoded(const std::u32string& points) {
    std::string text;
    const auto append = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    for (const char32_t point : points) {
        if (point < 0x80) {
            append(point);
        } else if (point < 0x800) {
            append(0xC0 | (point >> 6));
            append(0x80 | (point & 0x3F));
        } else if (point < 0x10000) {
            append(0xE0 | (point >> 12));
            append(0x80 | ((point >> 6) & 0x3F));
            append(0x80 | (point & 0x3F));
        } else {
            append(0xF0 | (point >> 18));
            append(0x80 | ((point >> 12) & 0x3F));
            append(0x80 | ((point >> 6) & 0x3F));
            append(0x80 | (point & 0x3F));
        }
    }
    return text;
}

/// The text with U+FFFD in place of what is not UTF-8.
inline std::string repaired(std::string_view text) { return encoded(decodedAsBrowsersDo(text)); }
