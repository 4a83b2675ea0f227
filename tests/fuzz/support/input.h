// What a fuzz target makes of its bytes.
#pragma once
#include <cstddef>
#include <cstdint>
#include <string>

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// The text as far as a C string of it goes.
inline std::string upToNul(const std::string& text) { return text.substr(0, text.find('\0')); }

/// Takes texts off the front of the input; they are separated by NULs.
class Fields {
public:
    Fields(const std::uint8_t* data, std::size_t size) : rest_(textOf(data, size)) {}

    /// The next text; empty when there is none left.
    std::string next() {
        const std::size_t end = rest_.find('\0');
        const std::string field = rest_.substr(0, end);
        rest_.erase(0, end == std::string::npos ? end : end + 1);
        return field;
    }

private:
    std::string rest_;
};
