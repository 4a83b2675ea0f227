#include "app/window/page_revival.h"

#include <utility>

#include "console/log.h"

static constexpr const char* sentence =
    "Tessary ends because the process that shows its page ended again and again: start Tessary again.";

bool ThreeAMinute::allows(Clock::time_point now) {
    while (!taken_.empty() && now - taken_.front() >= std::chrono::minutes(1)) taken_.pop_front();
    if (taken_.size() == 3) return false;
    taken_.push_back(now);
    return true;
}

void PageRevival::revive(bool canLoadAgain, std::function<void()> giveUp) {
    logText("[Backend Error] The process of the page ended\n");
    if (canLoadAgain && revivals_.allows(Clock::now())) return window_.navigate(url_);
    window_.report(sentence, std::move(giveUp));
}
