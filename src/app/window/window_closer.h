// Closes the window: at once, after a question, or for the system, which waits for nobody.
#pragma once
#include "app/window/page_window.h"
#include "app/window/work_keeper.h"

class WindowCloser {
public:
    /// Both are borrowed.
    WindowCloser(PageWindow& window, WorkKeeper& keeper) : window_(window), keeper_(keeper) {}

    /// The user wants to close the window. Asks when the page has unsaved work. A page that is gone or hangs is not
    /// waited for, and the copy of its work stays.
    void requestClose();
    /// The system wants the program to end: unsaved work is copied, and nobody is asked.
    void requestEnd();

    [[nodiscard]] bool isEnding() const { return stage_ == Stage::ending; }

private:
    enum class Stage { open, askingPage, askingUser, ending };

    void ask(const DiscardQuestion& question);
    void end();

    PageWindow& window_;
    WorkKeeper& keeper_;
    Stage stage_ = Stage::open;
};
