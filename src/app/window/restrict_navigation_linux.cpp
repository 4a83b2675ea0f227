#include "app/window/restrict_navigation_linux.h"

#include "app/window/navigation_policy.h"
#include "bridge/link_opener.h"

static std::string addressOf(WebKitPolicyDecision* decision) {
    auto* action = webkit_navigation_policy_decision_get_navigation_action(WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    const char* address = webkit_uri_request_get_uri(webkit_navigation_action_get_request(action));
    return address == nullptr ? "" : address;
}

static gboolean decidePolicy(WebKitWebView*, WebKitPolicyDecision* policyDecision, WebKitPolicyDecisionType type,
                             const std::string* origin) {
    if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE) return FALSE;
    const std::string address = addressOf(policyDecision);
    const NavigationDecision decision = decideNavigation(address, *origin);
    if (decision == NavigationDecision::allow) return FALSE;
    // A link that no program opens goes nowhere.
    if (decision == NavigationDecision::openExternally) static_cast<void>(launchUrl(address));
    webkit_policy_decision_ignore(policyDecision);
    return TRUE;
}

bool restrictNavigation(WebKitWebView* view, const std::string& origin) {
    if (view == nullptr) return false;
    const auto release = [](gpointer text, GClosure*) { delete static_cast<std::string*>(text); };
    return g_signal_connect_data(view, "decide-policy", G_CALLBACK(decidePolicy), new std::string(origin), release,
                                 static_cast<GConnectFlags>(0)) != 0;
}
