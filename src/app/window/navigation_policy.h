// src/app/window/navigation_policy.h: keeps the window on the program's own page. Whatever is shown in the window can
// call the bound functions, and with them read and write files.
#pragma once
#include <string>
#include <string_view>

enum class Destination {
    window,   ///< shown in the window
    browser,  ///< handed to the system's browser or mail program
    nowhere,  ///< refused
};

/// Where an address belongs that something in the window leads to: a link, a redirect, a dropped file or address.
/// `origin` is scheme, host and port without a slash, as in "http://localhost:1234". The engines give addresses in
/// their normal form, so they are compared as they stand.
[[nodiscard]] Destination destinationOf(std::string_view url, std::string_view origin);

/// True when the address may be shown in the window; where it may not, it is handed to the system where it belongs.
[[nodiscard]] bool mayShow(const std::string& url, const std::string& origin);

/// Puts the fence around the engine's page: a WebKitWebView, or an ICoreWebView2. Addresses that lead elsewhere are no
/// longer shown, in this window or a new one. Call it once, on the UI thread; the page outlives the fence.
void keepOnOrigin(void* page, const std::string& origin);
