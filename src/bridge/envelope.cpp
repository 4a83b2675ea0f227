#include "bridge/envelope.h"

#include "bridge/text/json.h"
#include "bridge/text/utf8.h"

std::string envelope(const Outcome& outcome, const char* payloadKey) {
    const Json object(json_object_new_object());
    const auto addText = [&](const char* key, const std::string& text) {
        if (text.c_str()[0] == '\0') return;  // a text ends at its first NUL
        json_object_object_add(object.get(), key, json_object_new_string(text.c_str()));
    };
    json_object_object_add(object.get(), "success", json_object_new_boolean(outcome.success));
    addText(payloadKey, outcome.payload);
    addText("error", outcome.error);
    return asciiJson(json_object_to_json_string(object.get()));
}

std::string jsonString(const std::string& text) {
    const Json value(json_object_new_string(text.c_str()));
    return asciiJson(json_object_to_json_string(value.get()));
}
