#include "app/window/restrict_navigation_linux.h"

#include <utility>

#include "bridge/link_opener.h"

static std::string addressOf(WebKitPolicyDecision* decision) {
    auto* action = webkit_navigation_policy_decision_get_navigation_action(WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    const char* address = webkit_uri_request_get_uri(webkit_navigation_action_get_request(action));
    return address == nullptr ? "" : address;
}

static gboolean decidePolicy(WebKitWebView* view, WebKitPolicyDecision* policyDecision, WebKitPolicyDecisionType type,
                             const NavigationPolicy* policy) {
    if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE) return FALSE;
    const std::string address = addressOf(policyDecision);
    const NavigationDecision decision = policy->decide(address);
    if (decision == NavigationDecision::allow) return FALSE;
    webkit_policy_decision_ignore(policyDecision);
    // A link that no program opens goes nowhere.
    if (decision == NavigationDecision::openExternally) static_cast<void>(launchUrl(address));
    const bool isThisWindow = type == WEBKIT_POLICY_DECISION_TYPE_NAVIGATION_ACTION;
    if (decision == NavigationDecision::startPage && isThisWindow) {
        webkit_web_view_load_uri(view, policy->startPage().c_str());
    }
    return TRUE;
}

bool restrictNavigation(WebKitWebView* view, NavigationPolicy policy) {
    if (view == nullptr) return false;
    const auto release = [](gpointer data, GClosure*) { delete static_cast<NavigationPolicy*>(data); };
    return g_signal_connect_data(view, "decide-policy", G_CALLBACK(decidePolicy),
                                 new NavigationPolicy(std::move(policy)), release, static_cast<GConnectFlags>(0)) != 0;
}
