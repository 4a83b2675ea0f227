// The engine's context menu, without what has no use in this window.
#pragma once
#include <webkit2/webkit2.h>

/// From now on the menu has no Back, Forward, Stop and Reload, unless Shift is held while it is opened.
void restrictContextMenu(WebKitWebView* view);
