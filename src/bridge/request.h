// Reads the arguments that the page passed to a bound function.
#pragma once
#include <cstddef>
#include <optional>
#include <string>

#include "bridge/text/json.h"

/// The arguments of one call: the elements of a JSON array.
class Request {
public:
    /// `text` is the array's JSON text, in UTF-8. Anything else makes a request that is no array.
    explicit Request(const std::string& text);

    [[nodiscard]] bool isArray() const { return isArray_; }
    /// How many arguments there are; 0 when the request is no array.
    [[nodiscard]] std::size_t size() const;
    /// Argument `index` up to its first NUL character; nothing when it is missing or not a string.
    [[nodiscard]] std::optional<std::string> string(std::size_t index) const;

private:
    Json root_;
    bool isArray_;
};
