#include "app/window/work_guard.h"

#include <utility>

WorkGuard::WorkGuard(std::unique_ptr<PageWindow> window, const std::string& url, std::function<bool()> isBusy)
    : window_(std::move(window)),
      keeper_(*window_, RescueFolder()),
      closer_(*window_, keeper_),
      revival_(*window_, url),
      isBusy_(std::move(isBusy)) {
    WindowEvents events;
    events.closeRequested = [this] {
        if (!isBusy_()) closer_.requestClose();
    };
    events.endRequested = [this] { closer_.requestEnd(); };
    events.pageDied = [this](bool canLoadAgain) {
        keeper_.pageDied();
        if (!closer_.isEnding()) revival_.revive(canLoadAgain, [this] { closer_.requestEnd(); });
    };
    window_->listen(std::move(events));
    keeper_.start();
    revival_.watch();
}
