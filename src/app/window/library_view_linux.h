// Makes the library's view keep nothing on the disk and draw the fast way. To be included before the library.
#pragma once
#include <webkit2/webkit2.h>

#include "app/window/graphics_processor_linux.h"

/// The engine draws the page itself instead of handing layers to OpenGL, which is slow and takes memory where the
/// processor has to stand in for a graphics processor.
inline void drawDirectly(WebKitWebView* view) {
    webkit_settings_set_hardware_acceleration_policy(webkit_web_view_get_settings(view),
                                                     WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
}

/// A view in a session of its own: what pages store lives in memory, outlives their processes, and ends with the view.
inline GtkWidget* newLibraryView() {
    WebKitWebContext* const session = webkit_web_context_new_ephemeral();
    auto* const view = WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "web-context", session, nullptr));
    g_object_unref(session);  // the view keeps it
    if (!hasGraphicsProcessor()) drawDirectly(view);
    return GTK_WIDGET(view);
}

// The library takes no view from outside; this is the one place where it makes one.
#define webkit_web_view_new newLibraryView
