#include "console/tee_stream_buf.h"

#include <filesystem>
#include <iostream>
#include <memory>
#include <mutex>
#include <system_error>
#include <utility>

#include "console/log.h"
#include "console/own_console.h"

namespace Console {

static std::string currentLogPath;
static std::streambuf* previousOut = nullptr;
static std::streambuf* previousErr = nullptr;
static std::unique_ptr<TeeStreamBuf> outTee;
static std::unique_ptr<TeeStreamBuf> errTee;
static const bool consoleOwned = false;  // the program never opens a console of its own

// Opening a pipe would wait until somebody reads it.
static bool canHoldLog(const std::filesystem::path& path) {
    std::error_code ignored;
    return !std::filesystem::exists(path, ignored) || std::filesystem::is_regular_file(path, ignored);
}

TeeStreamBuf::TeeStreamBuf(std::streambuf* console, const std::string& logPath) : console_(console) {
    if (canHoldLog(logPath)) logFile_.open(logPath, std::ios::out | std::ios::app);
    setp(buffer_.data(), buffer_.data() + buffer_.size() - 1);
}

TeeStreamBuf::~TeeStreamBuf() {
    flushPending();
    logFile_.close();
}

TeeStreamBuf::int_type TeeStreamBuf::overflow(int_type c) {
    if (!traits_type::eq_int_type(c, traits_type::eof())) {
        *pptr() = traits_type::to_char_type(c);
        pbump(1);
    }
    return sync() == -1 ? traits_type::eof() : c;
}

int TeeStreamBuf::sync() {
    flushPending();
    return 0;
}

void TeeStreamBuf::flushPending() {
    const std::streamsize pending = pptr() - pbase();
    if (pending == 0) return;
    if (console_ != nullptr) console_->sputn(pbase(), pending);
    logFile_.write(pbase(), pending);
    logFile_.flush();
    setp(buffer_.data(), buffer_.data() + buffer_.size() - 1);
}

bool init(const std::string& logPath) {
    const std::lock_guard guard(logMutex());
    if (&logPath != &currentLogPath) currentLogPath = logPath;
    // A tee from an earlier call still owns the streams: the buffers before it are the ones to give back.
    if (!outTee) previousOut = std::cout.rdbuf();
    if (!errTee) previousErr = std::cerr.rdbuf();
    auto nextOut = std::make_unique<TeeStreamBuf>(nullptr, currentLogPath);
    auto nextErr = std::make_unique<TeeStreamBuf>(nullptr, currentLogPath);
    std::cout.rdbuf(nextOut.get());
    std::cerr.rdbuf(nextErr.get());
    outTee = std::move(nextOut);
    errTee = std::move(nextErr);
    return false;
}

void shutdown() {
    const std::lock_guard guard(logMutex());
    if (previousOut != nullptr) std::cout.rdbuf(std::exchange(previousOut, nullptr));
    if (previousErr != nullptr) std::cerr.rdbuf(std::exchange(previousErr, nullptr));
    outTee.reset();
    errTee.reset();
    if (consoleOwned) freeOwnConsole();
}

}  // namespace Console
