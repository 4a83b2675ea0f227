// Keeps a copy of the page's unsaved work, which outlives the program.
#pragma once
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "app/window/page_window.h"
#include "bridge/files/work_copies.h"

/// At most this much work is lost with the program.
inline constexpr std::chrono::seconds copyInterval{10};

class WorkKeeper {
public:
    /// `window` is borrowed.
    WorkKeeper(PageWindow& window, RescueFolder folder) : window_(window), copy_(std::move(folder)) {}

    /// From now on asks the page every `copyInterval` while it has unsaved work. A page without is left alone, since
    /// every question wakes two processes up.
    void start();
    /// Asks the page now, and calls `done` when the copy is written or the page takes too long. An answer that comes
    /// later is written all the same: the page will not give the same work again unless it changes.
    void keepNow(std::function<void()> done);
    /// The work is discarded, or there is none: the copy goes, and answers to earlier questions are of no use.
    void discard();
    /// The page is loaded again. If it has nothing of the work that the copy holds then, the copy stays for ever.
    void pageDied() { isPageNew_ = true; }

private:
    void take(const PageResult& answer);

    PageWindow& window_;
    WorkCopy copy_;
    /// Shared with the questions whose answers are wanted: they may outlive this object, or the work.
    std::shared_ptr<const bool> asking_ = std::make_shared<const bool>(true);
    bool isWholeWanted_ = false;  ///< the last answer was lost, or its copy could not be written
    bool isPageNew_ = false;
    bool hasWork_ = false;  ///< as far as is known
};
