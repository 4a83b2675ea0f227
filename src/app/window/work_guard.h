// Keeps unsaved work from being lost with the window: the question before it closes, the orderly end, the page that
// comes back after its process died, and the copy that outlives the program.
#pragma once
#include <functional>
#include <memory>
#include <string>

#include "app/window/page_revival.h"
#include "app/window/page_window.h"
#include "app/window/window_closer.h"
#include "app/window/work_keeper.h"

class WorkGuard {
public:
    /// Takes the window over. `url` is the page's address without a slash at its end. While `isBusy`, since a dialog of
    /// the page's is open, the user's wish to close the window is dropped.
    WorkGuard(std::unique_ptr<PageWindow> window, const std::string& url, std::function<bool()> isBusy);

private:
    std::unique_ptr<PageWindow> window_;
    WorkKeeper keeper_;
    WindowCloser closer_;
    PageRevival revival_;
    std::function<bool()> isBusy_;
};
