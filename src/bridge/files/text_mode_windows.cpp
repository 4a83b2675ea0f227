#include <algorithm>

#include "bridge/files/text_mode.h"

std::string diskBytesOf(std::string text) {
    std::string bytes;
    bytes.reserve(text.size() + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')));
    for (const char letter : text) {
        if (letter == '\n') bytes += '\r';
        bytes += letter;
    }
    return bytes;
}

std::string textOfDiskBytes(std::string bytes) {
    static constexpr char endOfText = '\x1A';
    bytes.resize(std::min(bytes.find(endOfText), bytes.size()));
    std::size_t length = 0;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (bytes[at] == '\r' && at + 1 < bytes.size() && bytes[at + 1] == '\n') continue;
        bytes[length++] = bytes[at];
    }
    bytes.resize(length);
    return bytes;
}
