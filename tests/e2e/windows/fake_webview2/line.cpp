#include "line.h"

#include <cstddef>

static std::string escaped(const std::string& text) {
    std::string result;
    for (const char c : text) {
        if (c == '\\') result += "\\\\";
        else if (c == '\n') result += "\\n";
        else if (c == '\r') result += "\\r";
        else result += c;
    }
    return result;
}

static char unescaped(char letter) {
    if (letter == 'n') return '\n';
    if (letter == 'r') return '\r';
    return letter;
}

static std::string withoutEscapes(const std::string& text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escape = text[i] == '\\' && i + 1 < text.size();
        result += escape ? unescaped(text[++i]) : text[i];
    }
    return result;
}

std::string writtenLine(const Line& line) { return line.verb + " " + escaped(line.text) + "\n"; }

Line readLine(const std::string& written) {
    const std::size_t blank = written.find(' ');
    if (blank == std::string::npos) return {written, {}};
    return {written.substr(0, blank), withoutEscapes(written.substr(blank + 1))};
}
