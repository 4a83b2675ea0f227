#include "app/window/restrict_navigation_windows.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {
// Places in the interfaces' tables of methods, as WebView2Interfaces checks them.
constexpr std::size_t navigate = 5;
constexpr std::size_t addNavigationStarting = 7;
constexpr std::size_t addNewWindowRequested = 44;
constexpr std::size_t getUri = 3;
constexpr std::size_t putHandled = 6;
constexpr std::size_t putCancel = 8;

const NavigationPolicy policy{"http://localhost:1234", [](std::string_view path) { return path == "/words"; }};

/// A COM object of which only the given methods may be called.
template <std::size_t methods>
struct FakeObject {
    void** table = slots.data();
    std::array<void*, methods> slots{};

    template <typename Method>
    void set(std::size_t slot, Method method) {
        slots[slot] = reinterpret_cast<void*>(method);
    }
    template <typename Interface>
    [[nodiscard]] Interface* as() {
        return reinterpret_cast<Interface*>(this);
    }
};

/// A web engine's view that takes the handlers it is told to take.
struct FakeView : FakeObject<64> {
    FakeView(HRESULT navigationAnswer, HRESULT newWindowAnswer) : answers{navigationAnswer, newWindowAnswer} {
        set(navigate, noteAddress);
        set(addNavigationStarting, subscribe<0>);
        set(addNewWindowRequested, subscribe<1>);
    }
    ~FakeView() {
        for (IUnknown* handler : handlers) {
            if (handler != nullptr) handler->Release();
        }
    }
    FakeView(const FakeView&) = delete;
    FakeView& operator=(const FakeView&) = delete;

    template <std::size_t event>
    static HRESULT STDMETHODCALLTYPE subscribe(FakeView* self, IUnknown* handler, EventRegistrationToken*) {
        if (FAILED(self->answers[event])) return self->answers[event];
        handler->AddRef();
        self->handlers[event] = handler;
        return S_OK;
    }

    static HRESULT STDMETHODCALLTYPE noteAddress(FakeView* self, LPCWSTR address) {
        self->addresses.emplace_back(address);
        return S_OK;
    }

    std::vector<std::wstring> addresses;
    std::array<HRESULT, 2> answers;
    std::array<IUnknown*, 2> handlers{};
};

/// The arguments of an event; of both kinds of event, since their tables differ in what the tests call.
struct FakeArguments : FakeObject<16> {
    explicit FakeArguments(const wchar_t* address) : uri(address) {
        set(getUri, giveUri);
        set(putCancel, prevent);
        set(putHandled, prevent);
    }
    static HRESULT STDMETHODCALLTYPE giveUri(FakeArguments* self, LPWSTR* result) {
        if (self->uri == nullptr) return E_FAIL;
        const std::size_t bytes = (std::wcslen(self->uri) + 1) * sizeof *self->uri;
        *result = static_cast<LPWSTR>(CoTaskMemAlloc(bytes));
        std::memcpy(*result, self->uri, bytes);
        return S_OK;
    }
    static HRESULT STDMETHODCALLTYPE prevent(FakeArguments* self, BOOL yes) {
        self->prevented = yes != FALSE;
        return S_OK;
    }

    const wchar_t* uri;
    bool prevented = false;
};

class RestrictNavigation : public testing::Test {
protected:
    FakeView view{S_OK, S_OK};

    void SetUp() override { ASSERT_TRUE(restrictNavigation(view.as<ICoreWebView2>(), policy)); }

    bool navigates(const wchar_t* address) {
        FakeArguments arguments(address);
        auto* handler = static_cast<ICoreWebView2NavigationStartingEventHandler*>(view.handlers[0]);
        EXPECT_EQ(handler->Invoke(view.as<ICoreWebView2>(), arguments.as<ICoreWebView2NavigationStartingEventArgs>()),
                  S_OK);
        return !arguments.prevented;
    }
    bool opensWindow(const wchar_t* address) {
        FakeArguments arguments(address);
        auto* handler = static_cast<ICoreWebView2NewWindowRequestedEventHandler*>(view.handlers[1]);
        EXPECT_EQ(handler->Invoke(nullptr, arguments.as<ICoreWebView2NewWindowRequestedEventArgs>()), S_OK);
        return !arguments.prevented;
    }
};
}  // namespace

TEST_F(RestrictNavigation, LetsTheWindowGoToTheProgramsOwnPagesOnly) {
    EXPECT_TRUE(navigates(L"http://localhost:1234/words"));
    EXPECT_FALSE(navigates(L"file:///C:/windows/win.ini"));
    EXPECT_FALSE(navigates(nullptr)) << "an address that cannot be read";
}

TEST_F(RestrictNavigation, ShowsTheStartPageInPlaceOfAPageThatTheServerDoesNotHave) {
    EXPECT_FALSE(navigates(L"http://localhost:1234/tools/words"));
    EXPECT_EQ(view.addresses, std::vector<std::wstring>{L"http://localhost:1234/"});
}

TEST_F(RestrictNavigation, OpensNoSecondWindow) {
    EXPECT_FALSE(opensWindow(L"http://localhost:1234/words"));
    EXPECT_FALSE(opensWindow(L"file:///C:/windows/win.ini"));
}

TEST(RestrictNavigationOf, AViewThatRefusesAHandlerFails) {
    FakeView withoutNavigation(E_NOTIMPL, S_OK);
    EXPECT_FALSE(restrictNavigation(withoutNavigation.as<ICoreWebView2>(), policy));
    FakeView withoutNewWindow(S_OK, E_NOINTERFACE);
    EXPECT_FALSE(restrictNavigation(withoutNewWindow.as<ICoreWebView2>(), policy));
    EXPECT_FALSE(restrictNavigation(nullptr, policy));
}
