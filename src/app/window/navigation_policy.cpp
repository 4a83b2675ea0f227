#include "app/window/navigation_policy.h"

#include "bridge/link_opener.h"

static bool isOn(std::string_view url, std::string_view origin) {
    if (!url.starts_with(origin)) return false;
    url.remove_prefix(origin.size());
    return url.empty() || url.front() == '/' || url.front() == '?' || url.front() == '#';
}

Destination destinationOf(std::string_view url, std::string_view origin) {
    // The engines' own empty page holds nothing and calls nothing.
    if (url == "about:blank" || isOn(url, origin)) return Destination::window;
    return isExternalLink(url) ? Destination::browser : Destination::nowhere;
}

bool mayShow(const std::string& url, const std::string& origin) {
    const Destination destination = destinationOf(url, origin);
    // A link that no program opens goes nowhere; nobody is there to be told.
    if (destination == Destination::browser) static_cast<void>(launchUrl(url));
    return destination == Destination::window;
}
