// Makes WebKitGTK follow the navigation policy.
#pragma once
#include <webkit2/webkit2.h>

#include "app/window/navigation_policy.h"

/// From now on the view shows what the policy allows only, and opens no new windows for others.
/// Call it once, on the UI thread, before the first page. False when the view cannot be restricted: show no page in it
/// then.
[[nodiscard]] bool restrictNavigation(WebKitWebView* view, NavigationPolicy policy);
