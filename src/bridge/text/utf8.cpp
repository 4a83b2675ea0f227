#include "bridge/text/utf8.h"

#include <array>
#include <cstddef>
#include <cstdint>

static constexpr char32_t replacementCharacter = 0xFFFD;

struct Decoded {
    char32_t codePoint;
    std::size_t length;  // bytes taken, at least 1
};

static bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// The first continuation byte has a narrower range after some lead bytes (Unicode Standard, table 3-7): it keeps out
// overlong forms, surrogates and code points above U+10FFFF.
static bool mayFollow(unsigned char lead, unsigned char byte) {
    switch (lead) {
        case 0xE0: return byte >= 0xA0 && byte <= 0xBF;
        case 0xED: return byte >= 0x80 && byte <= 0x9F;
        case 0xF0: return byte >= 0x90 && byte <= 0xBF;
        case 0xF4: return byte >= 0x80 && byte <= 0x8F;
        default: return isContinuation(byte);
    }
}

static std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

/// Decodes the code point at the start of `text`, which must not be empty.
static Decoded decodeFirst(std::string_view text) {
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    const std::size_t length = sequenceLength(lead);
    if (length == 0) return {replacementCharacter, 1};
    if (length == 1) return {lead, 1};

    char32_t codePoint = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const bool fits = i < text.size() && (i == 1 ? mayFollow(lead, byteAt(1)) : isContinuation(byteAt(i)));
        if (!fits) return {replacementCharacter, i};
        codePoint = (codePoint << 6) | (byteAt(i) & 0x3Fu);
    }
    return {codePoint, length};
}

/// Copies plain ASCII as it is and hands every other code point to `append`.
template <typename Append>
static std::string rewritten(std::string_view text, Append append) {
    std::string result;
    result.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        const std::size_t start = i;
        while (i < text.size() && static_cast<unsigned char>(text[i]) < 0x7F) ++i;
        result.append(text, start, i - start);
        if (i == text.size()) break;
        const Decoded decoded = decodeFirst(text.substr(i));
        append(result, decoded, text.substr(i, decoded.length));
        i += decoded.length;
    }
    return result;
}

static void appendUnicodeEscape(std::string& out, std::uint32_t unit) {
    static constexpr char digits[] = "0123456789abcdef";
    const std::array<char, 6> escape = {
        '\\', 'u', digits[(unit >> 12) & 15], digits[(unit >> 8) & 15], digits[(unit >> 4) & 15], digits[unit & 15]};
    out.append(escape.data(), escape.size());
}

std::string wellFormedUtf8(std::string_view text) {
    return rewritten(text, [](std::string& out, const Decoded& decoded, std::string_view bytes) {
        // U+FFFD as such decodes to itself, so writing it anew changes nothing.
        if (decoded.codePoint == replacementCharacter) out += "\xEF\xBF\xBD";
        else out += bytes;
    });
}

std::string asciiJson(std::string_view json) {
    return rewritten(json, [](std::string& out, const Decoded& decoded, std::string_view) {
        const char32_t point = decoded.codePoint;
        if (point < 0x10000) return appendUnicodeEscape(out, point);
        appendUnicodeEscape(out, 0xD800 + ((point - 0x10000) >> 10));
        appendUnicodeEscape(out, 0xDC00 + ((point - 0x10000) & 0x3FF));
    });
}
