// The JSON object that four of the five bound functions answer.
#pragma once
#include <string>

#include "bridge/files/outcome.h"

/// The envelope as ASCII-only JSON: "success", then `payloadKey` ("data" or "path") unless the payload is empty, then
/// "error" unless it is empty.
[[nodiscard]] std::string envelope(const Outcome& outcome, const char* payloadKey);

/// `text` as an ASCII-only JSON string.
[[nodiscard]] std::string jsonString(const std::string& text);
