#include "app/window/page_zoom_linux.h"

#include <gdk/gdkkeysyms.h>

#include "app/window/zoom.h"

static void zoomIn(WebKitWebView* view) {
    webkit_web_view_set_zoom_level(view, largerZoom(webkit_web_view_get_zoom_level(view)));
}

static void zoomOut(WebKitWebView* view) {
    webkit_web_view_set_zoom_level(view, smallerZoom(webkit_web_view_get_zoom_level(view)));
}

/// Shift is not looked at: there are keyboards where plus or the digits need it.
static bool isControlAlone(guint state) {
    return (state & gtk_accelerator_get_default_mod_mask() & ~guint{GDK_SHIFT_MASK}) == GDK_CONTROL_MASK;
}

static gboolean zoomByKey(WebKitWebView* view, const GdkEventKey* event, gpointer) {
    if (!isControlAlone(event->state)) return FALSE;
    switch (event->keyval) {
        case GDK_KEY_plus:
        case GDK_KEY_equal:  // the same key without Shift, on many keyboards
        case GDK_KEY_KP_Add: zoomIn(view); return TRUE;
        case GDK_KEY_minus:
        case GDK_KEY_KP_Subtract: zoomOut(view); return TRUE;
        case GDK_KEY_0:
        case GDK_KEY_KP_0: webkit_web_view_set_zoom_level(view, 1); return TRUE;
        default: return FALSE;
    }
}

/// Notches, downwards when positive.
static double turnOf(const GdkEventScroll* event) {
    switch (event->direction) {
        case GDK_SCROLL_UP: return -1;
        case GDK_SCROLL_DOWN: return 1;
        case GDK_SCROLL_SMOOTH: return event->delta_y;
        default: return 0;
    }
}

static gboolean zoomByWheel(WebKitWebView* view, const GdkEventScroll* event, WheelNotches* wheel) {
    if (!isControlAlone(event->state)) return FALSE;
    int notches = wheel->add(turnOf(event));
    for (; notches < 0; ++notches) zoomIn(view);
    for (; notches > 0; --notches) zoomOut(view);
    return TRUE;
}

void enableZoom(WebKitWebView* view) {
    const auto release = [](gpointer wheel, GClosure*) { delete static_cast<WheelNotches*>(wheel); };
    g_signal_connect(view, "key-press-event", G_CALLBACK(zoomByKey), nullptr);
    g_signal_connect_data(view, "scroll-event", G_CALLBACK(zoomByWheel), new WheelNotches, release,
                          static_cast<GConnectFlags>(0));
}
