// Prints the windows that can be seen and what is in them, as a screen reader would find it. One line for each:
// depth (0 for a window of its own), class, control number, text; separated by tabs, UTF-8, line breaks as blanks.
// Lists follow with one line for each entry, of class "entry".
#include <windows.h>

#include <cstdio>
#include <string>

#include "text.h"

static constexpr UINT patience = 2000;  // milliseconds, for a window that does not answer

static LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR answer = 0;
    const LRESULT answered = SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, patience, &answer);
    return answered == 0 ? 0 : static_cast<LRESULT>(answer);
}

static std::wstring textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(ask(window, WM_GETTEXTLENGTH)) + 1, L'\0');
    ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text.c_str();
}

static void print(int depth, const std::wstring& className, int control, std::wstring text) {
    for (wchar_t& letter : text) {
        if (letter < L' ') letter = L' ';
    }
    std::printf("%d\t%s\t%d\t%s\n", depth, utf8(className.c_str()).c_str(), control, utf8(text.c_str()).c_str());
}

static void printEntries(HWND list, int depth) {
    const LRESULT count = ask(list, CB_GETCOUNT);
    for (LRESULT i = 0; i < count; ++i) {
        const auto index = static_cast<WPARAM>(i);
        std::wstring text(static_cast<std::size_t>(ask(list, CB_GETLBTEXTLEN, index)) + 1, L'\0');
        ask(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        print(depth, L"entry", static_cast<int>(i), text.c_str());
    }
}

static BOOL CALLBACK printWindow(HWND window, LPARAM depth) {
    if (!IsWindowVisible(window)) return TRUE;
    wchar_t className[256] = {};
    GetClassNameW(window, className, 256);
    print(static_cast<int>(depth), className, GetDlgCtrlID(window), textOf(window));
    if (std::wstring(className) == L"ComboBox") printEntries(window, static_cast<int>(depth) + 1);
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
        printWindow(child, depth + 1);
    }
    return TRUE;
}

int main() { EnumWindows(printWindow, 0); }
