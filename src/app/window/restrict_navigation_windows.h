// Makes WebView2 follow the navigation policy.
#pragma once
#include <WebView2.h>

#include <string>

/// From now on the view shows addresses of `origin` only (navigation_policy.h), and opens no new windows. Call it once,
/// on the UI thread, before the first page. False when the engine takes one of the handlers not: show no page in it
/// then.
[[nodiscard]] bool restrictNavigation(ICoreWebView2* view, const std::string& origin);
