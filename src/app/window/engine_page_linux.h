// src/app/window/engine_page_linux.h: the WebKitWebView behind the library's window. To be included after the library,
// in the one unit that includes it.
#pragma once
#include <gtk/gtk.h>

/// The window's only child; null when there is none.
inline void* enginePage(webview::webview& view) { return gtk_bin_get_child(GTK_BIN(view.window())); }
