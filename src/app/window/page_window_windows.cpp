#include "app/window/page_window_windows.h"

#include <map>
#include <utility>

#include "app/window/com_handler_windows.h"
#include "app/window/message_box_windows.h"
#include "bridge/text/utf16_windows.h"

// The interfaces' published identifiers.
static constexpr IID executeScriptCompleted{
    0x49511172, 0xCC67, 0x4BCA, {0x99, 0x23, 0x13, 0x71, 0x12, 0xF4, 0xC4, 0xCC}};
static constexpr IID processFailed{0x79E0AEA4, 0x990B, 0x42D9, {0xAA, 0x1D, 0x0F, 0xCC, 0x2E, 0x5B, 0xC7, 0xF1}};

/// The system gives a program about five seconds at the end of the session.
static constexpr ULONGLONG sessionPatience = 4500;  // milliseconds

static Win32PageWindow* onlyWindow = nullptr;

Win32PageWindow::Win32PageWindow(HWND window, ICoreWebView2* page) : window_(window), page_(page) { onlyWindow = this; }

Win32PageWindow::~Win32PageWindow() { onlyWindow = nullptr; }

LRESULT CALLBACK Win32PageWindow::receive(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    Win32PageWindow* const self = onlyWindow;
    if (self == nullptr) return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_CLOSE) {
        self->events_.closeRequested();
        return 0;
    }
    if (message == WM_QUERYENDSESSION) return TRUE;
    if (message == WM_ENDSESSION) {
        if (wParam != FALSE) self->endSession();
        return 0;
    }
    return CallWindowProcW(self->libraryProcedure_, window, message, wParam, lParam);
}

// The process may be ended as soon as the message is answered, so the work is done before.
void Win32PageWindow::endSession() {
    events_.endRequested();
    const ULONGLONG end = GetTickCount64() + sessionPatience;
    while (!closed_ && GetTickCount64() < end) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        MSG message;
        while (!closed_ && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    destroy();
}

void Win32PageWindow::listen(WindowEvents events) {
    events_ = std::move(events);
    libraryProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Win32PageWindow::receive)));

    const auto failed = makeHandler<ICoreWebView2ProcessFailedEventHandler>(
        processFailed, [this](ICoreWebView2*, ICoreWebView2ProcessFailedEventArgs* arguments) {
            COREWEBVIEW2_PROCESS_FAILED_KIND kind{};
            if (FAILED(arguments->get_ProcessFailedKind(&kind))) return S_OK;
            // The engine starts its other processes again by itself, and a page that hangs may come back.
            if (kind == COREWEBVIEW2_PROCESS_FAILED_KIND_RENDER_PROCESS_EXITED) events_.pageDied(true);
            if (kind == COREWEBVIEW2_PROCESS_FAILED_KIND_BROWSER_PROCESS_EXITED) events_.pageDied(false);
            return S_OK;
        });
    EventRegistrationToken token;
    page_->add_ProcessFailed(failed.get(), &token);
}

void Win32PageWindow::evaluate(const std::string& script, std::function<void(PageResult)> done) {
    const auto completed = makeHandler<ICoreWebView2ExecuteScriptCompletedHandler>(
        executeScriptCompleted, [done](HRESULT errorCode, LPCWSTR json) {
            done(SUCCEEDED(errorCode) && json != nullptr ? PageResult(utf8FromUtf16(json)) : std::nullopt);
            return S_OK;
        });
    if (FAILED(page_->ExecuteScript(utf16FromUtf8(script).c_str(), completed.get()))) {
        after(std::chrono::milliseconds(0), [done] { done(std::nullopt); });
    }
}

std::string Win32PageWindow::title() {
    LPWSTR text = nullptr;
    if (FAILED(page_->get_DocumentTitle(&text)) || text == nullptr) return {};
    std::string title = utf8FromUtf16(text);
    CoTaskMemFree(text);
    return title;
}

static std::map<UINT_PTR, std::function<void()>>& waitingTasks() {
    static std::map<UINT_PTR, std::function<void()>> tasks;
    return tasks;
}

static void CALLBACK runTask(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    const auto task = waitingTasks().extract(timer);
    if (!task.empty()) task.mapped()();
}

void Win32PageWindow::after(std::chrono::milliseconds delay, std::function<void()> task) {
    const UINT_PTR timer = SetTimer(nullptr, 0, static_cast<UINT>(delay.count()), runTask);
    if (timer != 0) waitingTasks()[timer] = std::move(task);
}

void Win32PageWindow::navigate(const std::string& url) { page_->Navigate(utf16FromUtf8(url).c_str()); }

// The engine raises no event while one of its handlers runs, and boxes are shown in a loop of their own: they wait
// until the handler that wants one is over.
void Win32PageWindow::askToDiscard(const DiscardQuestion& question, std::function<void(bool)> answered) {
    const MessageBoxTexts texts{utf16FromUtf8(question.title), utf16FromUtf8(question.text),
                                utf16FromUtf8(question.discard), utf16FromUtf8(question.cancel)};
    after(std::chrono::milliseconds(0), [this, texts, answered] { answered(askOkOrCancel(window_, texts)); });
}

void Win32PageWindow::report(const std::string& sentence, std::function<void()> read) {
    after(std::chrono::milliseconds(0), [this, sentence, read] {
        MessageBoxW(window_, utf16FromUtf8(sentence).c_str(), L"Tessary", MB_OK | MB_ICONERROR);
        read();
    });
}

void Win32PageWindow::cancelDialogs() { cancelSystemDialogs(); }

void Win32PageWindow::close() {
    after(std::chrono::milliseconds(0), [this] { destroy(); });
}

void Win32PageWindow::destroy() {
    if (std::exchange(closed_, true)) return;
    DestroyWindow(window_);
}
