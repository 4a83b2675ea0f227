// Reports the copies of unsaved work that earlier runs left behind, and offers them.
#pragma once
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bridge/files/work_copies.h"

class Notice;

/// What the notice can do.
struct LeftWorkActions {
    std::function<void(const std::filesystem::path&)> open;  ///< in a window of its own
    std::function<void(const std::filesystem::path&)> showFolder;
};

class LeftWorkNotice {
public:
    /// `owner` is the main window (NativeWebView::nativeWindow).
    LeftWorkNotice(void* owner, RescueFolder folder, LeftWorkActions actions);
    ~LeftWorkNotice();

    /// Shows the notice when there is anything to offer. Nothing is opened or deleted by itself.
    void offer();

private:
    void remove();

    std::unique_ptr<Notice> notice_;
    const RescueFolder folder_;
    const LeftWorkActions actions_;
    std::vector<RescuedText> copies_;
};

/// One line for each copy: its name and when it was written, in local time.
[[nodiscard]] std::string listOfCopies(const std::vector<RescuedText>& copies);
