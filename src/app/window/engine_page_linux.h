// The WebKitWebView behind the library's window. To be included after the library, in the one unit that includes it.
#pragma once
#include <webkit2/webkit2.h>

#include <memory>

#include "app/window/page_window_linux.h"

/// The window's only child; null when that is something else.
inline WebKitWebView* enginePage(webview::webview& view) {
    GtkWidget* const child = gtk_bin_get_child(GTK_BIN(view.window()));
    return WEBKIT_IS_WEB_VIEW(child) ? WEBKIT_WEB_VIEW(child) : nullptr;
}

/// The window must have a page.
inline std::unique_ptr<PageWindow> pageWindowOf(webview::webview& view) {
    return std::make_unique<GtkPageWindow>(enginePage(view));
}
