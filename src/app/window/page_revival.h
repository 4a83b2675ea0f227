// Loads the page again when the process that showed it is gone, or when nothing of it has come.
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

/// A page whose document has not begun to arrive after this time will not come.
inline constexpr std::chrono::seconds loadPatience{10};

class PageRevival {
public:
    /// `window` is borrowed. `url` is the page's address without a slash at its end; it is being loaded for the first
    /// time, or empty when there is none.
    PageRevival(PageWindow& window, const std::string& url)
        : window_(window), restoredUrl_(url + "/?restored"), loading_(url) {}

    /// From now on loads the page once more where nothing of it is there `loadPatience` after it was asked for, as when
    /// its process ends so early that the engine does not report it. Three times at most, in all.
    void watch();

    /// Loads the page with a mark in its address by which it reports what happened. When that is of no use any more, a
    /// sentence is shown, and `giveUp` called.
    void revive(bool canLoadAgain, std::function<void()> giveUp);

private:
    PageWindow& window_;
    const std::string restoredUrl_;
    std::string loading_;
    int repeated_ = 0;
    ThreeAMinute revivals_;
};
