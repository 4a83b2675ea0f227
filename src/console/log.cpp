#include "console/log.h"

#include <iostream>

std::mutex& logMutex() {
    static std::mutex mutex;
    return mutex;
}

void writeLog(std::string_view text) {
    const std::lock_guard guard(logMutex());
    std::cout.write(text.data(), static_cast<std::streamsize>(text.size()));
    std::cout.flush();
}
