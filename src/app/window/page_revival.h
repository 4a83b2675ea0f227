// Loads the page again when the process that showed it is gone.
#pragma once
#include <chrono>
#include <deque>
#include <functional>
#include <string>

#include "app/window/page_window.h"

using Clock = std::chrono::steady_clock;

/// Allows three things a minute.
class ThreeAMinute {
public:
    /// Whether one more is allowed at `now`, which then counts. Times must not go back.
    [[nodiscard]] bool allows(Clock::time_point now);

private:
    std::deque<Clock::time_point> taken_;
};

class PageRevival {
public:
    /// `window` is borrowed. `url` is the page's address without a slash at its end.
    PageRevival(PageWindow& window, const std::string& url) : window_(window), url_(url + "/?restored") {}

    /// Loads the page with a mark in its address by which it reports what happened. When that is of no use any more, a
    /// sentence is shown, and `giveUp` called.
    void revive(bool canLoadAgain, std::function<void()> giveUp);

private:
    PageWindow& window_;
    const std::string url_;
    ThreeAMinute revivals_;
};
