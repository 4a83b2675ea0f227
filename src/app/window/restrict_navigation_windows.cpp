#include "app/window/restrict_navigation_windows.h"

#include "app/window/com_handler_windows.h"
#include "bridge/link_opener.h"
#include "bridge/text/utf16_windows.h"

namespace {
// The interfaces' published identifiers.
constexpr IID navigationStarting{0x9ADBE429, 0xF36D, 0x432B, {0x9D, 0xDC, 0xF8, 0x88, 0x1F, 0xBD, 0x76, 0xE3}};
constexpr IID newWindowRequested{0xD4C185FE, 0xC81C, 0x4989, {0x97, 0xAF, 0x2D, 0x3F, 0xA7, 0xAB, 0x56, 0x51}};

/// What an event says of its address. An address that cannot be read is shown nowhere.
template <typename Arguments>
std::string addressOf(Arguments* arguments) {
    LPWSTR text = nullptr;
    if (FAILED(arguments->get_Uri(&text)) || text == nullptr) return {};
    std::string address = utf8FromUtf16(text);
    CoTaskMemFree(text);
    return address;
}

HRESULT decide(ICoreWebView2* view, ICoreWebView2NavigationStartingEventArgs* arguments,
               const NavigationPolicy& policy) {
    const std::string address = addressOf(arguments);
    const NavigationDecision decision = policy.decide(address);
    if (decision == NavigationDecision::allow) return S_OK;
    const HRESULT cancelled = arguments->put_Cancel(TRUE);
    // A link that no program opens goes nowhere.
    if (decision == NavigationDecision::openExternally) static_cast<void>(launchUrl(address));
    if (decision == NavigationDecision::startPage) view->Navigate(utf16FromUtf8(policy.startPage()).c_str());
    return cancelled;
}

/// There is one window only. What may be shown in it gets no second one.
HRESULT refuseWindow(ICoreWebView2NewWindowRequestedEventArgs* arguments, const NavigationPolicy& policy) {
    const std::string address = addressOf(arguments);
    if (policy.decide(address) == NavigationDecision::openExternally) static_cast<void>(launchUrl(address));
    return arguments->put_Handled(TRUE);
}
}  // namespace

bool restrictNavigation(ICoreWebView2* view, NavigationPolicy policy) {
    if (view == nullptr) return false;
    EventRegistrationToken token;
    const auto navigation = makeHandler<ICoreWebView2NavigationStartingEventHandler>(
        navigationStarting,
        [policy](ICoreWebView2* sender, auto* arguments) { return decide(sender, arguments, policy); });
    const auto newWindow = makeHandler<ICoreWebView2NewWindowRequestedEventHandler>(
        newWindowRequested, [policy](ICoreWebView2*, auto* arguments) { return refuseWindow(arguments, policy); });
    return SUCCEEDED(view->add_NavigationStarting(navigation.get(), &token)) &&
           SUCCEEDED(view->add_NewWindowRequested(newWindow.get(), &token));
}
