// Asks the page without waiting for ever.
#pragma once
#include <chrono>
#include <functional>
#include <string>

#include "app/window/page_window.h"

/// A page that takes longer than this hangs.
inline constexpr std::chrono::milliseconds pagePatience{2000};

struct PageAnswer {
    bool inTime = false;  ///< false when the page hangs; `result` is empty then
    PageResult result;
};

/// Runs a script in the page and calls `done` once, after `pagePatience` at the latest.
void askPage(PageWindow& window, const std::string& script, std::function<void(const PageAnswer&)> done);
