// Shows what users should hear about saves in one notice beside the window, as long as it is true.
#pragma once
#include "app/window/notice.h"
#include "app/window/save_problems.h"
#include "bridge/files/save_report.h"

class SaveNotice final : public SaveReporter {
public:
    /// `window` is the main window (NativeWebView::nativeWindow).
    explicit SaveNotice(void* window) : notice_(window) {}

    void failed(const FailedSave& save) override;
    void replaced(const ReplacedText& text) override;
    void saved(const std::filesystem::path& document) override;

private:
    void forgetWhatWasClosed();

    Notice notice_;
    SaveProblems problems_;
};
