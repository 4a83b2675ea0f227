#include <webkit2/webkit2.h>

#include "app/window/navigation_policy.h"

static std::string addressOf(WebKitPolicyDecision* decision) {
    auto* action = webkit_navigation_policy_decision_get_navigation_action(WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    const char* address = webkit_uri_request_get_uri(webkit_navigation_action_get_request(action));
    return address == nullptr ? "" : address;
}

static gboolean decide(WebKitWebView*, WebKitPolicyDecision* decision, WebKitPolicyDecisionType type,
                       const std::string* origin) {
    if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE) return FALSE;
    if (mayShow(addressOf(decision), *origin)) return FALSE;
    webkit_policy_decision_ignore(decision);
    return TRUE;
}

void keepOnOrigin(void* page, const std::string& origin) {
    const auto forget = [](gpointer text, GClosure*) { delete static_cast<std::string*>(text); };
    g_signal_connect_data(page, "decide-policy", G_CALLBACK(decide), new std::string(origin), forget,
                          static_cast<GConnectFlags>(0));
}
