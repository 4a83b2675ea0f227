// src/bridge/envelope.h: the JSON object that four of the five bound functions answer.
#pragma once
#include <string>

/// What an operation came to. `error` is one of the codes below, or empty.
struct Outcome {
    bool success = false;
    std::string payload;  ///< file content or chosen path; ends at its first NUL in the answer
    std::string error;
};

inline constexpr const char* invalidArguments = "invalid-arguments";
inline constexpr const char* fileNotFound = "file-not-found";
inline constexpr const char* fileReadFailed = "file-read-failed";
inline constexpr const char* fileWriteFailed = "file-write-failed";
inline constexpr const char* userCancelled = "user-cancelled";

[[nodiscard]] inline Outcome succeeded(std::string payload = {}) { return {true, std::move(payload), {}}; }
[[nodiscard]] inline Outcome failed(const char* code) { return {false, {}, code}; }

/// The envelope as ASCII-only JSON: "success", then `payloadKey` ("data" or "path") unless the payload is empty, then
/// "error" unless it is empty.
[[nodiscard]] std::string envelope(const Outcome& outcome, const char* payloadKey);

/// `text` as an ASCII-only JSON string.
[[nodiscard]] std::string jsonString(const std::string& text);
