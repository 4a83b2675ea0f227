// A small window beside the program's main one that reports something and waits for nothing: the page and the caller go
// on. It has a "Close" button of its own after those that are asked for; Escape closes it, too. For the UI thread.
#pragma once
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct NoticeButton {
    std::string label;
    /// Called on the UI thread at each press; must not throw. It may close or change the notice, which otherwise stays
    /// as it is.
    std::function<void()> press;
};

/// All texts are UTF-8; bytes that are not are replaced.
struct NoticeContent {
    std::string heading;  ///< one line
    std::string text;     ///< may have several lines, and can be copied by the user
    std::vector<NoticeButton> buttons;
};

class Notice {
public:
    /// `owner` is the main window (NativeWebView::nativeWindow). The notice stays in front of it, and goes with it.
    explicit Notice(void* owner);
    /// Closes the notice.
    ~Notice();

    /// Opens the notice, or changes what the open one shows. The keyboard stays where it is.
    void show(const NoticeContent& content);
    /// Closes the notice if it is open.
    void close();
    /// False before the first `show`, and once the user or `close` has closed it.
    [[nodiscard]] bool isShown() const;

private:
    class Native;
    std::unique_ptr<Native> native_;
};
