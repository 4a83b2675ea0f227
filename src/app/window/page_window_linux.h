// The window and its page with GTK and WebKitGTK.
#pragma once
#include <gtk/gtk.h>
#include <webkit2/webkit2.h>

#include "app/window/page_window.h"

class GtkPageWindow final : public PageWindow {
public:
    /// `page` is borrowed and stands in a window.
    explicit GtkPageWindow(WebKitWebView* page);

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
    WebKitWebView* page_;
    GtkWindow* window_;
    WindowEvents events_;
};
