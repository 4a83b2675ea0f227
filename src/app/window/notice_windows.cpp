#include <windows.h>
// windows.h must come first
#include <algorithm>

#include "app/window/notice.h"
#include "bridge/text/utf16_windows.h"

// In pixels; the system scales the windows of this program as a whole.
static constexpr int margin = 14;
static constexpr int iconSize = 32;
static constexpr int textWidth = 400;
static constexpr int greatestTextHeight = 320;  // what is longer can be scrolled
static constexpr int buttonHeight = 26;
static constexpr int leastButtonWidth = 80;

static constexpr int firstButton = 100;  // number of the first control that is asked for; "Close" is IDCANCEL

static std::vector<HWND>& openNotices() {
    static std::vector<HWND> windows;
    return windows;
}

// The web-view library's message loop leaves out what gives a dialog its keys: Tab, Enter, Escape.
static LRESULT CALLBACK handleDialogKeys(int code, WPARAM removed, LPARAM address) {
    auto* const message = reinterpret_cast<MSG*>(address);
    if (code == HC_ACTION && removed == PM_REMOVE) {
        for (const HWND window : openNotices()) {
            if (IsDialogMessageW(window, message) == FALSE) continue;
            message->message = WM_NULL;
            break;
        }
    }
    return CallNextHookEx(nullptr, code, removed, address);
}

static HFONT messageFont(LONG weight) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    metrics.lfMessageFont.lfWeight = weight;
    return CreateFontIndirectW(&metrics.lfMessageFont);
}

static std::wstring withWindowsLineEnds(const std::wstring& text) {
    std::wstring lines;
    for (const wchar_t letter : text) {
        if (letter == L'\n') lines += L'\r';
        lines += letter;
    }
    return lines;
}

class Notice::Native {
public:
    explicit Native(void* owner) : owner_(static_cast<HWND>(owner)) {}
    ~Native() {
        close();
        DeleteObject(font_);
        DeleteObject(bold_);
    }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    void show(const NoticeContent& content) {
        const bool opens = window_ == nullptr;
        if (opens) open();
        if (window_ == nullptr) return;
        fill(content);
        ShowWindow(window_, SW_SHOWNA);
        if (opens) NotifyWinEvent(EVENT_SYSTEM_ALERT, window_, OBJID_CLIENT, CHILDID_SELF);
    }
    void close() {
        if (window_ != nullptr) DestroyWindow(window_);
    }
    [[nodiscard]] bool isShown() const { return window_ != nullptr; }

private:
    void open();
    void fill(const NoticeContent& content);
    void empty();
    void place(SIZE client);
    void press(WORD control);
    HWND add(const wchar_t* kind, const std::wstring& text, DWORD style, RECT at, int control, HFONT font);
    [[nodiscard]] SIZE measure(const std::wstring& text, HFONT font, LONG width) const;
    static INT_PTR CALLBACK handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND owner_;
    HWND window_ = nullptr;
    HHOOK hook_ = nullptr;
    HFONT font_ = messageFont(FW_NORMAL);
    HFONT bold_ = messageFont(FW_BOLD);
    std::vector<NoticeButton> buttons_;
};

void Notice::Native::open() {
    // An empty dialog, with the zeros that stand for no menu, the usual class and no title.
    struct Template {
        DLGTEMPLATE head;
        WORD menu, kind, title;
    } dialog{{WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 0, 0}, 0, 0, 0};
    if (owner_ != nullptr && IsWindow(owner_) == FALSE) owner_ = nullptr;
    window_ = CreateDialogIndirectParamW(GetModuleHandleW(nullptr), &dialog.head, owner_, handle,
                                         reinterpret_cast<LPARAM>(this));
    if (window_ == nullptr) return;
    SetWindowTextW(window_, L"Notice - Tessary");
    openNotices().push_back(window_);
    hook_ = SetWindowsHookExW(WH_GETMESSAGE, handleDialogKeys, nullptr, GetCurrentThreadId());
}

INT_PTR CALLBACK Notice::Native::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
        return FALSE;  // the keyboard stays where it is
    }
    auto* const notice = reinterpret_cast<Native*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (notice == nullptr) return FALSE;
    if (message == WM_CLOSE) {
        notice->close();
        return TRUE;
    }
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED) {
        notice->press(LOWORD(wParam));
        return TRUE;
    }
    if (message == WM_NCDESTROY) {
        auto& open = openNotices();
        open.erase(std::remove(open.begin(), open.end(), window), open.end());
        if (notice->hook_ != nullptr) UnhookWindowsHookEx(notice->hook_);
        notice->hook_ = nullptr;
        notice->window_ = nullptr;
    }
    return FALSE;
}

void Notice::Native::press(WORD control) {
    if (control == IDCANCEL) return close();
    const std::size_t index = control - std::size_t{firstButton};
    if (control < firstButton || index >= buttons_.size()) return;
    // What it does may take the button away, and the action with it.
    const std::function<void()> action = buttons_[index].press;
    action();
}

HWND Notice::Native::add(const wchar_t* kind, const std::wstring& text, DWORD style, RECT at, int control, HFONT font) {
    const HWND window = CreateWindowExW(
        0, kind, text.c_str(), WS_CHILD | WS_VISIBLE | style, at.left, at.top, at.right - at.left, at.bottom - at.top,
        window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(control)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    return window;
}

SIZE Notice::Native::measure(const std::wstring& text, HFONT font, LONG width) const {
    const HDC device = GetDC(window_);
    const HGDIOBJ before = SelectObject(device, font);
    RECT area{0, 0, width, 0};
    DrawTextW(device, text.c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX);
    SelectObject(device, before);
    ReleaseDC(window_, device);
    return {area.right, area.bottom};
}

void Notice::Native::empty() {
    while (const HWND control = GetWindow(window_, GW_CHILD)) DestroyWindow(control);
}

void Notice::Native::fill(const NoticeContent& content) {
    // The keyboard was in one of the controls that go now.
    const bool hasKeyboard = IsChild(window_, GetFocus()) != FALSE;
    empty();
    buttons_ = content.buttons;
    const std::wstring heading = utf16FromUtf8(content.heading);
    const std::wstring text = withWindowsLineEnds(utf16FromUtf8(content.text));
    const LONG left = margin + iconSize + margin;
    const LONG right = left + textWidth;
    const LONG headingBottom = margin + measure(heading, bold_, textWidth).cy;
    const LONG textTop = headingBottom + margin / 2;
    const LONG textHeight = measure(text, font_, textWidth - margin).cy + margin / 2;
    const bool scrolls = textHeight > greatestTextHeight;
    const LONG textBottom = textTop + std::min<LONG>(textHeight, greatestTextHeight);
    const LONG buttonTop = std::max<LONG>(textBottom, margin + iconSize) + margin;

    // "Close" comes first in the order of the Tab key, and stands last in the row.
    LONG buttonRight = right;
    const auto addButton = [&](const std::wstring& label, DWORD style, int control) {
        const LONG width = std::max<LONG>(measure(label, font_, textWidth).cx + 2 * margin, leastButtonWidth);
        const RECT at{buttonRight - width, buttonTop, buttonRight, buttonTop + buttonHeight};
        buttonRight -= width + margin / 2;
        return add(L"BUTTON", label, WS_TABSTOP | style, at, control, font_);
    };
    const HWND closing = addButton(L"Close", BS_DEFPUSHBUTTON, IDCANCEL);
    for (std::size_t index = buttons_.size(); index-- > 0;) {
        addButton(utf16FromUtf8(buttons_[index].label), BS_PUSHBUTTON, firstButton + static_cast<int>(index));
    }
    const HWND icon = add(L"STATIC", L"", SS_ICON, {margin, margin, margin + iconSize, margin + iconSize}, -1, font_);
    SendMessageW(icon, STM_SETICON, reinterpret_cast<WPARAM>(LoadIconW(nullptr, MAKEINTRESOURCEW(32515))), 0);
    add(L"STATIC", heading, SS_NOPREFIX, {left, margin, right, headingBottom}, -1, bold_);
    const DWORD textStyle = ES_MULTILINE | ES_READONLY | WS_TABSTOP | (scrolls ? WS_VSCROLL : 0);
    add(L"EDIT", text, textStyle, {left, textTop, right, textBottom}, -1, font_);
    place({right + margin, buttonTop + buttonHeight + margin});
    if (hasKeyboard) SetFocus(closing);
}

void Notice::Native::place(SIZE client) {
    RECT window{0, 0, client.cx, client.cy};
    AdjustWindowRectEx(&window, static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)), FALSE, 0);
    const int width = window.right - window.left;
    const int height = window.bottom - window.top;
    const bool stays = IsWindowVisible(window_) != FALSE;
    RECT around{};
    if (owner_ == nullptr || GetWindowRect(owner_, &around) == FALSE) GetWindowRect(GetDesktopWindow(), &around);
    const int x = around.left + (around.right - around.left - width) / 2;
    const int y = around.top + (around.bottom - around.top - height) / 2;
    SetWindowPos(window_, HWND_TOP, x, y, width, height, SWP_NOACTIVATE | (stays ? SWP_NOMOVE | SWP_NOZORDER : 0));
    InvalidateRect(window_, nullptr, TRUE);
}

Notice::Notice(void* owner) : native_(std::make_unique<Native>(owner)) {}

Notice::~Notice() = default;

void Notice::show(const NoticeContent& content) { native_->show(content); }

void Notice::close() { native_->close(); }

bool Notice::isShown() const { return native_->isShown(); }
