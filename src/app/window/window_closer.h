// Closes the window: at once, after a question, or for the system, which waits for nobody.
#pragma once
#include "app/window/page_window.h"

class WindowCloser {
public:
    /// `window` is borrowed.
    explicit WindowCloser(PageWindow& window) : window_(window) {}

    /// The user wants to close the window. Asks when the page has unsaved work. A page that is gone or hangs is not
    /// waited for.
    void requestClose();
    /// The system wants the program to end. Nobody is asked.
    void requestEnd();

    [[nodiscard]] bool isEnding() const { return stage_ == Stage::ending; }

private:
    enum class Stage { open, askingPage, askingUser, ending };

    void ask(const DiscardQuestion& question);
    void end();

    PageWindow& window_;
    Stage stage_ = Stage::open;
};
