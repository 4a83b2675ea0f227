// Keeps the window on the program's own page: whatever is shown in it can call the bound functions, and with them read
// and write files. The decision is here; restrict_navigation_linux.h and restrict_navigation_windows.h make the web
// engines ask for it.
#pragma once
#include <string_view>

enum class NavigationDecision {
    allow,           ///< shown in the window
    openExternally,  ///< handed to the system's browser or mail program
    block,
};

/// Decides about an address that something in the window leads to: a link, a redirect, a dropped file or address.
/// `origin` is scheme, host and port without a slash, as in "http://localhost:1234". The engines give addresses in
/// their normal form, so they are compared as they stand.
[[nodiscard]] NavigationDecision decideNavigation(std::string_view url, std::string_view origin);
