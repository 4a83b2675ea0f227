#include "app/window/navigation_policy.h"

#include "bridge/link_opener.h"

static bool isOn(std::string_view url, std::string_view origin) {
    if (!url.starts_with(origin)) return false;
    url.remove_prefix(origin.size());
    return url.empty() || url.front() == '/' || url.front() == '?' || url.front() == '#';
}

NavigationDecision decideNavigation(std::string_view url, std::string_view origin) {
    // The engines' own empty page holds nothing and calls nothing.
    if (url == "about:blank" || isOn(url, origin)) return NavigationDecision::allow;
    return isExternalLink(url) ? NavigationDecision::openExternally : NavigationDecision::block;
}
