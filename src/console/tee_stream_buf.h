// Carries what is written to the standard streams into the log file.
#pragma once
#include <array>
#include <fstream>
#include <streambuf>
#include <string>

namespace Console {

/// Hands each flushed block of text to a log file and, when there is one, to a second stream buffer.
/// Takes no lock. A log file that cannot be opened or written, or is no regular file, is silently done without.
class TeeStreamBuf : public std::streambuf {
public:
    /// `console` is borrowed and may be null. `logPath` is in the file-system code page; the file is created when
    /// missing and only ever appended to.
    TeeStreamBuf(std::streambuf* console, const std::string& logPath);
    /// Writes what is still pending, then closes the file.
    ~TeeStreamBuf() override;

    TeeStreamBuf(const TeeStreamBuf&) = delete;
    TeeStreamBuf& operator=(const TeeStreamBuf&) = delete;

protected:
    int_type overflow(int_type c) override;
    int sync() override;

private:
    void flushPending();

    std::streambuf* console_;
    std::ofstream logFile_;
    std::array<char, 1024> buffer_{};  // the last byte is kept for the character that arrives when the rest is full
};

/// Sends `std::cout` and `std::cerr` to the log file at `logPath` (file-system code page). May be called again.
/// The result is always false and means nothing.
bool init(const std::string& logPath);

/// Gives the streams their earlier buffers back and closes the log file. Harmless when `init` never ran.
void shutdown();

}  // namespace Console
