// Zoom by the keyboard and the wheel, which WebKitGTK leaves to the program. (WebView2 brings its own.)
#pragma once
#include <webkit2/webkit2.h>

/// From now on Ctrl with plus, minus or the wheel changes the page's zoom, and Ctrl+0 ends it. The page does not get
/// these keys: its layout follows like in a window of another size. The view keeps the level for as long as it lives.
void enableZoom(WebKitWebView* view);
