// Every line of the log goes through here.
#pragma once
#include <fmt/format.h>

#include <mutex>
#include <string_view>

/// Guards the standard output stream: the server's workers log while the main thread does.
[[nodiscard]] std::mutex& logMutex();

/// Writes `text` to `std::cout` as it stands, in one piece, and flushes. Safe from any thread.
void writeLog(std::string_view text);

/// Formats with "{}" placeholders and writes the result; a line break is only where `format` has one.
template <typename... Args>
void logText(fmt::string_view format, const Args&... args) {
    writeLog(fmt::vformat(format, fmt::make_format_args(args...)));
}
