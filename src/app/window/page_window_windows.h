// The window and its page with Win32 and WebView2.
#pragma once
#include <WebView2.h>

#include "app/window/page_window.h"

/// There is one of it in the program: messages find it through a process-wide pointer.
class Win32PageWindow final : public PageWindow {
public:
    /// Both are borrowed.
    Win32PageWindow(HWND window, ICoreWebView2* page);
    ~Win32PageWindow() override;

    void listen(WindowEvents events) override;
    void evaluate(const std::string& script, std::function<void(PageResult)> done) override;
    [[nodiscard]] std::string title() override;
    void after(std::chrono::milliseconds delay, std::function<void()> task) override;
    void navigate(const std::string& url) override;
    void askToDiscard(const DiscardQuestion& question, std::function<void(bool discard)> answered) override;
    void report(const std::string& sentence, std::function<void()> read) override;
    void cancelDialogs() override;
    void close() override;

private:
    static LRESULT CALLBACK receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void endSession();
    void destroy();

    HWND window_;
    ICoreWebView2* page_;
    WNDPROC libraryProcedure_ = nullptr;
    WindowEvents events_;
    bool closed_ = false;
};
