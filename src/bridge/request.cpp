#include "bridge/request.h"

Request::Request(const std::string& text)
    : root_(json_tokener_parse(text.c_str())), isArray_(json_object_get_type(root_.get()) == json_type_array) {}

std::size_t Request::size() const { return isArray_ ? json_object_array_length(root_.get()) : 0; }

std::optional<std::string> Request::string(std::size_t index) const {
    if (index >= size()) return std::nullopt;
    json_object* element = json_object_array_get_idx(root_.get(), index);
    if (json_object_get_type(element) != json_type_string) return std::nullopt;
    return std::string(json_object_get_string(element));
}
