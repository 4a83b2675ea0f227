// What an operation on a file came to, as the page gets it.
#pragma once
#include <string>
#include <utility>

/// `error` is one of the codes below, or empty.
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
