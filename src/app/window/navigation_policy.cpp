#include "app/window/navigation_policy.h"

#include <optional>

#include "bridge/link_opener.h"

/// What follows the origin in one of its addresses; nothing for other addresses.
static std::optional<std::string_view> rest(std::string_view url, std::string_view origin) {
    if (!url.starts_with(origin)) return std::nullopt;
    url.remove_prefix(origin.size());
    const bool isOrigins = url.empty() || url.front() == '/' || url.front() == '?' || url.front() == '#';
    return isOrigins ? std::optional(url) : std::nullopt;
}

NavigationDecision NavigationPolicy::decide(std::string_view url) const {
    // The engines' own empty page holds nothing and calls nothing.
    if (url == "about:blank") return NavigationDecision::allow;
    if (const auto own = rest(url, origin)) {
        const std::string_view path = own->substr(0, own->find_first_of("?#"));
        return path.empty() || isServed(path) ? NavigationDecision::allow : NavigationDecision::startPage;
    }
    return isExternalLink(url) ? NavigationDecision::openExternally : NavigationDecision::block;
}
