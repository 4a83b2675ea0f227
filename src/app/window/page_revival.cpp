#include "app/window/page_revival.h"

#include <utility>

#include "console/log.h"

static constexpr const char* endingAgain =
    "Tessary ends because the process that shows its page ended again and again: start Tessary again.";

static constexpr int mostRepeated = 3;

bool ThreeAMinute::allows(Clock::time_point now) {
    while (!taken_.empty() && now - taken_.front() >= std::chrono::minutes(1)) taken_.pop_front();
    if (taken_.size() == 3) return false;
    taken_.push_back(now);
    return true;
}

void PageRevival::watch() {
    if (loading_.empty()) return;
    window_.after(loadPatience, [this] {
        if (!window_.title().empty() || repeated_ == mostRepeated) return;
        ++repeated_;
        logText("[Backend Error] The page did not load\n");
        window_.navigate(loading_);
        watch();
    });
}

void PageRevival::revive(bool canLoadAgain, std::function<void()> giveUp) {
    logText("[Backend Error] The process of the page ended\n");
    if (canLoadAgain && revivals_.allows(Clock::now())) {
        loading_ = restoredUrl_;
        window_.navigate(loading_);
        return watch();
    }
    window_.report(endingAgain, std::move(giveUp));
}
