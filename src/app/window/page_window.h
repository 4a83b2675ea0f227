// The window and its page, as the code sees them that keeps unsaved work. Used on the UI thread only.
#pragma once
#include <chrono>
#include <functional>
#include <optional>
#include <string>

/// JSON text of what a script gave; nothing when it failed, or when there was no page to run it.
using PageResult = std::optional<std::string>;

/// What the user is asked before unsaved work is lost, in the page's words.
struct DiscardQuestion {
    std::string title;
    std::string text;
    std::string discard;
    std::string cancel;
};

/// What happens to the window. None of them returns before the window's own code can go on.
struct WindowEvents {
    std::function<void()> closeRequested;  ///< by the user, who may be asked
    std::function<void()> endRequested;    ///< by the system, which waits for nobody
    /// The process that showed the page is gone; whether the page can be loaded again.
    std::function<void(bool canLoadAgain)> pageDied;
};

class PageWindow {
public:
    virtual ~PageWindow() = default;

    /// From now on `events` are called. Once.
    virtual void listen(WindowEvents events) = 0;
    /// Runs a script in the page. A page that hangs gives no result, or a late one.
    virtual void evaluate(const std::string& script, std::function<void(PageResult)> done) = 0;
    /// The page's title, in UTF-8; empty before it has one. The engine has it at hand: no process of its is woken up.
    [[nodiscard]] virtual std::string title() = 0;
    /// Calls `task` later, also while a dialog is open.
    virtual void after(std::chrono::milliseconds delay, std::function<void()> task) = 0;
    virtual void navigate(const std::string& url) = 0;

    /// Shows a message box that is modal to the window: cancel is its default, and Escape cancels.
    virtual void askToDiscard(const DiscardQuestion& question, std::function<void(bool discard)> answered) = 0;
    /// Shows a sentence until the user has read it.
    virtual void report(const std::string& sentence, std::function<void()> read) = 0;
    /// Cancels every dialog of the program, so that nothing waits for the user.
    virtual void cancelDialogs() = 0;
    /// Closes the window without a question; `run` returns. Nothing else may be asked of the window after that.
    virtual void close() = 0;
};
