#include "app/window/message_box_windows.h"

static constexpr const wchar_t* dialogClass = L"#32770";

static bool isDialog(HWND window) {
    wchar_t name[8] = {};
    return GetClassNameW(window, name, 8) != 0 && std::wstring(name) == dialogClass;
}

// Hooks get no context of their own. Only the UI thread shows boxes.
static const MessageBoxTexts* textsOfNextBox = nullptr;

static LRESULT CALLBACK nameButtons(int code, WPARAM wParam, LPARAM lParam) {
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && textsOfNextBox != nullptr && isDialog(window)) {
        SetDlgItemTextW(window, IDOK, textsOfNextBox->ok.c_str());
        SetDlgItemTextW(window, IDCANCEL, textsOfNextBox->cancel.c_str());
        textsOfNextBox = nullptr;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

bool askOkOrCancel(HWND owner, const MessageBoxTexts& texts) {
    textsOfNextBox = &texts;
    const HHOOK hook = SetWindowsHookExW(WH_CBT, nameButtons, nullptr, GetCurrentThreadId());
    const UINT style = MB_OKCANCEL | MB_DEFBUTTON2 | MB_ICONWARNING;
    const int answer = MessageBoxW(owner, texts.text.c_str(), texts.title.c_str(), style);
    if (hook != nullptr) UnhookWindowsHookEx(hook);
    textsOfNextBox = nullptr;
    return answer == IDOK;
}

void cancelSystemDialogs() {
    const auto cancel = [](HWND window, LPARAM) -> BOOL {
        if (isDialog(window)) PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), cancel, 0);
}
