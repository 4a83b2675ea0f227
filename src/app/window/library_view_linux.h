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

/// Seconds until the engine looks anew at the memory of the page's process. Its own half minute takes a window at rest
/// more processor time than all else; that of the system is watched as ever.
inline constexpr double memoryPollInterval = 300;

/// A session in which what pages store lives in memory, outlives their processes, and ends with the last view of it.
inline WebKitWebContext* newSession() {
    WebKitWebsiteDataManager* const storage = webkit_website_data_manager_new_ephemeral();
    WebKitMemoryPressureSettings* const memory = webkit_memory_pressure_settings_new();
    webkit_memory_pressure_settings_set_poll_interval(memory, memoryPollInterval);
    auto* const session = WEBKIT_WEB_CONTEXT(g_object_new(WEBKIT_TYPE_WEB_CONTEXT, "website-data-manager", storage,
                                                          "memory-pressure-settings", memory, nullptr));
    webkit_memory_pressure_settings_free(memory);
    g_object_unref(storage);
    return session;
}

/// A view in a session of its own.
inline GtkWidget* newLibraryView() {
    WebKitWebContext* const session = newSession();
    auto* const view = WEBKIT_WEB_VIEW(g_object_new(WEBKIT_TYPE_WEB_VIEW, "web-context", session, nullptr));
    g_object_unref(session);  // the view keeps it
    if (!hasGraphicsProcessor()) drawDirectly(view);
    return GTK_WIDGET(view);
}

// The library takes no view from outside; this is the one place where it makes one.
#define webkit_web_view_new newLibraryView
