#include "app/window/context_menu_linux.h"

static bool isAboutNavigation(WebKitContextMenuItem* item) {
    switch (webkit_context_menu_item_get_stock_action(item)) {
        case WEBKIT_CONTEXT_MENU_ACTION_GO_BACK:
        case WEBKIT_CONTEXT_MENU_ACTION_GO_FORWARD:
        case WEBKIT_CONTEXT_MENU_ACTION_STOP:
        case WEBKIT_CONTEXT_MENU_ACTION_RELOAD: return true;
        default: return false;
    }
}

/// When the menu was asked for; by now, where the engine does not say.
static bool isShiftHeld(WebKitContextMenu* menu) {
    GdkModifierType state{};
    GdkEvent* const event = webkit_context_menu_get_event(menu);
    if (event == nullptr || gdk_event_get_state(event, &state) == FALSE) {
        state = static_cast<GdkModifierType>(
            gdk_keymap_get_modifier_state(gdk_keymap_get_for_display(gdk_display_get_default())));
    }
    return (state & GDK_SHIFT_MASK) != 0;
}

/// Removes separators that separate nothing any more.
static void removeIdleSeparators(WebKitContextMenu* menu) {
    bool isAfterItem = false;
    for (guint i = 0; i < webkit_context_menu_get_n_items(menu);) {
        WebKitContextMenuItem* const item = webkit_context_menu_get_item_at_position(menu, i);
        const bool isSeparator = webkit_context_menu_item_is_separator(item) != FALSE;
        const bool isLast = i + 1 == webkit_context_menu_get_n_items(menu);
        if (isSeparator && (!isAfterItem || isLast)) {
            webkit_context_menu_remove(menu, item);
            continue;
        }
        isAfterItem = !isSeparator;
        ++i;
    }
}

static gboolean restrictMenu(WebKitWebView*, WebKitContextMenu* menu, GdkEvent*, WebKitHitTestResult*, gpointer) {
    if (isShiftHeld(menu)) return FALSE;
    for (guint i = webkit_context_menu_get_n_items(menu); i > 0; --i) {
        WebKitContextMenuItem* const item = webkit_context_menu_get_item_at_position(menu, i - 1);
        if (isAboutNavigation(item)) webkit_context_menu_remove(menu, item);
    }
    removeIdleSeparators(menu);
    return webkit_context_menu_get_n_items(menu) == 0 ? TRUE : FALSE;  // TRUE shows no menu
}

void restrictContextMenu(WebKitWebView* view) {
    g_signal_connect(view, "context-menu", G_CALLBACK(restrictMenu), nullptr);
}
