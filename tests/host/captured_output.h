// What is written to std::cout while it lives.
#pragma once
#include <iostream>
#include <sstream>
#include <string>

#include "console/log.h"

class CapturedOutput {
public:
    CapturedOutput() : previous_(std::cout.rdbuf(text_.rdbuf())) {}
    ~CapturedOutput() {
        const std::lock_guard guard(logMutex());
        std::cout.rdbuf(previous_);
    }
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    [[nodiscard]] std::string text() const {
        const std::lock_guard guard(logMutex());
        return text_.str();
    }

private:
    std::ostringstream text_;
    std::streambuf* previous_;
};
