#include "app/window/native_web_view.h"

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
#include "bridge/call_queue.h"
#include "bridge/envelope.h"
#include "bridge/file_dialogs.h"
#include "bridge/text/utf8.h"

static constexpr int replied = 0;
static constexpr int rejected = 1;

struct NativeWebView::Library {
    webview::webview view{true, nullptr};
    CallQueue calls;

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
    if (dialogsAreReentrant()) return library_->bindById(name, handler);
    library_->view.bind(name, std::move(handler));
}

void NativeWebView::bindThrowing(const std::string& name, Handler handler) { library_->bindById(name, handler); }

bool NativeWebView::restrictNavigation(const std::string& origin) {
    return ::restrictNavigation(enginePage(library_->view), origin);
}

void NativeWebView::navigate(const std::string& url) { library_->view.navigate(url); }

void NativeWebView::setSize(int width, int height) { library_->view.set_size(width, height, WEBVIEW_HINT_NONE); }

void NativeWebView::run() { library_->view.run(); }
