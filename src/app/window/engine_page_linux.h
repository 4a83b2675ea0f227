// The WebKitWebView behind the library's window. To be included after the library, in the one unit that includes it.
#pragma once
#include <webkit2/webkit2.h>

/// The window's only child; null when that is something else.
inline WebKitWebView* enginePage(webview::webview& view) {
    GtkWidget* const child = gtk_bin_get_child(GTK_BIN(view.window()));
    return WEBKIT_IS_WEB_VIEW(child) ? WEBKIT_WEB_VIEW(child) : nullptr;
}
