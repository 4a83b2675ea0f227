// Makes WebKitGTK follow the navigation policy.
#pragma once
#include <webkit2/webkit2.h>

#include <string>

/// From now on the view shows addresses of `origin` only (navigation_policy.h), and opens no new windows for others.
/// Call it once, on the UI thread, before the first page. False when the view cannot be restricted: show no page in it
/// then.
[[nodiscard]] bool restrictNavigation(WebKitWebView* view, const std::string& origin);
