// The system's message box, with other texts on its buttons.
#pragma once
#include <windows.h>

#include <string>

struct MessageBoxTexts {
    std::wstring title;
    std::wstring text;
    std::wstring ok;
    std::wstring cancel;
};

/// Asks with a message box that is modal to `owner`: cancel is the default, and Escape cancels. Blocks in a message
/// loop of its own. False when the box cannot be shown.
[[nodiscard]] bool askOkOrCancel(HWND owner, const MessageBoxTexts& texts);

/// Cancels all message boxes and common dialogs of this thread.
void cancelSystemDialogs();
