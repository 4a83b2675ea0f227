// Makes the library's view keep nothing on the disk. To be included before the library.
#pragma once
#include <webkit2/webkit2.h>

/// A view in a session of its own: what pages store lives in memory, outlives their processes, and ends with the view.
inline GtkWidget* newPrivateWebView() {
    WebKitWebContext* const session = webkit_web_context_new_ephemeral();
    auto* const view = GTK_WIDGET(g_object_new(WEBKIT_TYPE_WEB_VIEW, "web-context", session, nullptr));
    g_object_unref(session);  // the view keeps it
    return view;
}

// The library takes no view from outside; this is the one place where it makes one.
#define webkit_web_view_new newPrivateWebView
