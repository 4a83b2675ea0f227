// The ICoreWebView2 behind the library's window. To be included after the library, in the one unit that includes it.
#pragma once
#include <memory>

#include "app/window/page_window_windows.h"

// Of its objects the library hands out the window's handle alone. A private member may be named where a template is
// instantiated explicitly (C++20, temp.spec), so the page is reached without a change to the library.
template <auto page>
struct EnginePage {
    friend ICoreWebView2* pageOf(const webview::webview& view) { return view.*page; }
};
ICoreWebView2* pageOf(const webview::webview& view);
template struct EnginePage<&webview::detail::win32_edge_engine::m_webview>;

/// Null when the engine did not start.
inline ICoreWebView2* enginePage(const webview::webview& view) { return pageOf(view); }

/// The window must have a page.
inline std::unique_ptr<PageWindow> pageWindowOf(webview::webview& view) {
    return std::make_unique<Win32PageWindow>(static_cast<HWND>(view.window()), enginePage(view));
}
