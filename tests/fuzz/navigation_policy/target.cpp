// Whatever address something in the window leads to, only the program's own page is shown in it.
#include "app/window/navigation_policy.h"

#include <glib.h>

#include <memory>

#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/require.h"

namespace fuzz_navigation_policy {

static const NavigationPolicy policy{"http://localhost:4711",
                                     [](std::string_view path) { return path.size() % 2 == 0; }};

// GLib's reading of addresses (RFC 3986) takes nothing from the policy's.
static void checkShown(const std::string& url) {
    if (url == "about:blank") return;
    const auto flags = static_cast<GUriFlags>(G_URI_FLAGS_ENCODED | G_URI_FLAGS_PARSE_RELAXED);
    const std::unique_ptr<GUri, decltype(&g_uri_unref)> uri(g_uri_parse(url.c_str(), flags, nullptr), g_uri_unref);
    if (!uri) return;  // no engine makes anything of it either
    require(std::string(g_uri_get_scheme(uri.get())) == "http", "what is shown comes by HTTP");
    require(std::string(g_uri_get_host(uri.get())) == "localhost", "what is shown comes from this computer");
    require(g_uri_get_port(uri.get()) == 4711, "what is shown comes from the program's own port");
    require(g_uri_get_userinfo(uri.get()) == nullptr, "nothing before the host passes for it");
}

static bool isLink(const std::string& url) {
    const std::unique_ptr<char, decltype(&g_free)> scheme(g_uri_parse_scheme(url.c_str()), g_free);
    if (!scheme) return false;
    const std::string lower = scheme.get();
    return lower == "http" || lower == "https" || lower == "mailto";
}

FUZZ_TARGET(navigation_policy) {
    // An address ends at its first NUL, as engines give it.
    const std::string rest = upToNul(textOf(data, size));
    for (const std::string& url : {rest, policy.origin + rest}) {
        switch (policy.decide(url)) {
            case NavigationDecision::allow: checkShown(url); break;
            case NavigationDecision::startPage: checkShown(url); break;
            case NavigationDecision::openExternally: require(isLink(url), "only links leave the window"); break;
            case NavigationDecision::block: require(url != policy.startPage(), "the page itself is shown"); break;
        }
    }
    return 0;
}

}  // namespace fuzz_navigation_policy
