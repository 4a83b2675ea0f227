// Keeps the window on the program's own page: whatever is shown in it can call the bound functions, and with them read
// and write files. The decision is here; restrict_navigation_linux.h and restrict_navigation_windows.h make the web
// engines ask for it.
#pragma once
#include <functional>
#include <string>
#include <string_view>

enum class NavigationDecision {
    allow,           ///< shown in the window
    startPage,       ///< one of the page's own routes, which no server knows: the start page is shown in its place
    openExternally,  ///< handed to the system's browser or mail program
    block,
};

struct NavigationPolicy {
    std::string origin;  ///< scheme, host and port without a slash, as in "http://localhost:1234"
    /// Whether the server has something at a path, as in "/words".
    std::function<bool(std::string_view path)> isServed;

    [[nodiscard]] std::string startPage() const { return origin + "/"; }

    /// Decides about an address that something in the window leads to: a link, a redirect, a reload, a dropped file or
    /// address. The engines give addresses in their normal form, so they are compared as they stand.
    [[nodiscard]] NavigationDecision decide(std::string_view url) const;
};
