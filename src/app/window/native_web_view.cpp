#include "app/window/native_web_view.h"

#ifndef _WIN32
#include "app/window/library_view_linux.h"
#endif
#include <webview.h>

#include <exception>
#include <utility>

#ifdef _WIN32
#include "app/window/engine_page_windows.h"
#include "app/window/restrict_navigation_windows.h"
#else
#include "app/window/engine_page_linux.h"
#include "app/window/restrict_navigation_linux.h"
#endif
#include "app/window/work_guard.h"
#include "bridge/call_queue.h"
#include "bridge/envelope.h"
#include "bridge/file_dialogs.h"
#include "bridge/text/utf8.h"

static constexpr int replied = 0;
static constexpr int rejected = 1;

namespace {
/// Counts while it lives.
class Running {
public:
    explicit Running(int& count) : count_(count) { ++count_; }
    ~Running() { --count_; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    int& count_;
};
}  // namespace

struct NativeWebView::Library {
    webview::webview view{true, nullptr};
    CallQueue calls;
    int runningCalls = 0;
    std::unique_ptr<WorkGuard> guard;

    /// Shows that a call of the page's runs, also while it waits for the user.
    [[nodiscard]] Handler counted(const Handler& handler) {
        return [this, handler](const std::string& request) {
            const Running running(runningCalls);
            return handler(request);
        };
    }

    /// Calls `handler` when its turn has come and replies by the call's id. An exception must not get out: it would
    /// cross the web engine's frames and end the process.
    void bindById(const std::string& name, const Handler& handler) {
        const auto answer = [this, handler](const std::string& id, const std::string& request) {
            try {
                view.resolve(id, replied, handler(request));
            } catch (const std::exception& error) {
                view.resolve(id, rejected, jsonString(error.what()));
            }
        };
        view.bind(
            name,
            [this, answer](const std::string& id, const std::string& request, void*) {
                calls.run([answer, id, request] { answer(id, request); });
            },
            nullptr);
    }
};

NativeWebView::NativeWebView() : library_(std::make_unique<Library>()) {}

NativeWebView::~NativeWebView() = default;

void* NativeWebView::nativeWindow() const { return library_->view.window(); }

void NativeWebView::setTitle(const std::string& title) { library_->view.set_title(title); }

void NativeWebView::init(const std::string& script) { library_->view.init(wellFormedUtf8(script)); }

void NativeWebView::bind(const std::string& name, Handler handler) {
    // The library's synchronous form is enough where the engine holds other calls back while a dialog is open.
    if (dialogsAreReentrant()) return library_->bindById(name, library_->counted(handler));
    library_->view.bind(name, library_->counted(handler));
}

void NativeWebView::bindThrowing(const std::string& name, Handler handler) { library_->bindById(name, handler); }

bool NativeWebView::restrictNavigation(const NavigationPolicy& policy) {
    return ::restrictNavigation(enginePage(library_->view), policy);
}

void NativeWebView::guardWork(const std::string& origin) {
    const auto isBusy = [this] { return library_->runningCalls > 0; };
    library_->guard = std::make_unique<WorkGuard>(pageWindowOf(library_->view), origin, isBusy);
}

void NativeWebView::navigate(const std::string& url) { library_->view.navigate(url); }

void NativeWebView::setSize(int width, int height) { library_->view.set_size(width, height, WEBVIEW_HINT_NONE); }

void NativeWebView::run() { library_->view.run(); }
