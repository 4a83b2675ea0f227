// Makes WebView2 follow the navigation policy.
#pragma once
#include <WebView2.h>

#include "app/window/navigation_policy.h"

/// From now on the view shows what the policy allows only, and opens no new windows. Call it once,
/// on the UI thread, before the first page. False when the engine takes one of the handlers not: show no page in it
/// then.
[[nodiscard]] bool restrictNavigation(ICoreWebView2* view, NavigationPolicy policy);
