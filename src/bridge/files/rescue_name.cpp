#include "bridge/files/rescue_name.h"

#include <algorithm>

namespace fs = std::filesystem;

/// At most so many units of the system's names, without half a character at the end.
static fs::path cut(const fs::path& name) {
    static constexpr std::size_t most = 100;
    fs::path::string_type text = name.native();
    if (text.size() <= most) return name;
    std::size_t end = most;
    // Of UTF-8; in UTF-16 the characters in that range stand for themselves.
    if constexpr (sizeof(fs::path::value_type) == 1) {
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80) --end;
    }
    text.resize(end);
    return text;
}

fs::path rescueStemOf(const fs::path& document, const std::string& what) {
    fs::path name = document.filename();
    if (name.extension() == ".tessary") name = name.stem();
    if (name.extension() == ".words") name = name.stem();
    fs::path stem = name.empty() ? fs::path("untitled") : cut(name);
    return stem += " (" + what + ")";
}
