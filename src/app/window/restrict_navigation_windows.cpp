#include "app/window/restrict_navigation_windows.h"

#include <atomic>
#include <utility>

#include "app/window/navigation_policy.h"
#include "bridge/link_opener.h"
#include "bridge/text/utf16_windows.h"

namespace {
// The interfaces' published identifiers.
constexpr IID navigationStarting{0x9ADBE429, 0xF36D, 0x432B, {0x9D, 0xDC, 0xF8, 0x88, 0x1F, 0xBD, 0x76, 0xE3}};
constexpr IID newWindowRequested{0xD4C185FE, 0xC81C, 0x4989, {0x97, 0xAF, 0x2D, 0x3F, 0xA7, 0xAB, 0x56, 0x51}};

/// A counted COM object with one interface beside IUnknown.
template <typename Interface>
class EventHandler : public Interface {
public:
    EventHandler(const IID& id, std::string origin) : id_(id), origin_(std::move(origin)) {}
    virtual ~EventHandler() = default;

    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
        if (result == nullptr) return E_POINTER;
        *result = nullptr;
        if (!IsEqualIID(id, id_) && !IsEqualIID(id, IID_IUnknown)) return E_NOINTERFACE;
        *result = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }

protected:
    [[nodiscard]] const std::string& origin() const { return origin_; }

private:
    const IID id_;
    const std::string origin_;
    std::atomic<ULONG> references_ = 1;
};

/// What an event says of its address. An address that cannot be read is shown nowhere.
template <typename Arguments>
std::string addressOf(Arguments* arguments) {
    LPWSTR text = nullptr;
    if (FAILED(arguments->get_Uri(&text)) || text == nullptr) return {};
    std::string address = utf8FromUtf16(text);
    CoTaskMemFree(text);
    return address;
}

class NavigationHandler final : public EventHandler<ICoreWebView2NavigationStartingEventHandler> {
public:
    explicit NavigationHandler(const std::string& origin) : EventHandler(navigationStarting, origin) {}

    HRESULT STDMETHODCALLTYPE Invoke(ICoreWebView2*, ICoreWebView2NavigationStartingEventArgs* arguments) override {
        const std::string address = addressOf(arguments);
        const NavigationDecision decision = decideNavigation(address, origin());
        if (decision == NavigationDecision::allow) return S_OK;
        // A link that no program opens goes nowhere.
        if (decision == NavigationDecision::openExternally) static_cast<void>(launchUrl(address));
        return arguments->put_Cancel(TRUE);
    }
};

class NewWindowHandler final : public EventHandler<ICoreWebView2NewWindowRequestedEventHandler> {
public:
    explicit NewWindowHandler(const std::string& origin) : EventHandler(newWindowRequested, origin) {}

    /// There is one window only. What may be shown in it gets no second one.
    HRESULT STDMETHODCALLTYPE Invoke(ICoreWebView2*, ICoreWebView2NewWindowRequestedEventArgs* arguments) override {
        const std::string address = addressOf(arguments);
        if (decideNavigation(address, origin()) == NavigationDecision::openExternally) {
            static_cast<void>(launchUrl(address));
        }
        return arguments->put_Handled(TRUE);
    }
};
}  // namespace

bool restrictNavigation(ICoreWebView2* view, const std::string& origin) {
    if (view == nullptr) return false;
    EventRegistrationToken token;
    auto* const navigation = new NavigationHandler(origin);
    const HRESULT navigationAdded = view->add_NavigationStarting(navigation, &token);
    navigation->Release();
    auto* const newWindow = new NewWindowHandler(origin);
    const HRESULT newWindowAdded = view->add_NewWindowRequested(newWindow, &token);
    newWindow->Release();
    return SUCCEEDED(navigationAdded) && SUCCEEDED(newWindowAdded);
}
