// The real window, made with the web-view library.
#pragma once
#include <memory>

#include "app/window/navigation_policy.h"
#include "bridge/web_view.h"

/// Opens its own top-level window, with developer tools. The window is closed when the object is destroyed.
/// What the library returns from its operations is not looked at.
class NativeWebView final : public WebView {
public:
    NativeWebView();
    ~NativeWebView() override;

    /// Keeps the window on what the policy allows. False when the web engine cannot be restricted: no page may be shown
    /// then.
    [[nodiscard]] bool restrictNavigation(const NavigationPolicy& policy);

    /// The window itself: a GtkWindow* or HWND, for windows that belong to it.
    [[nodiscard]] void* nativeWindow() const;

    /// From now on unsaved work keeps the window open until the user lets it go, signals end the program in order, and
    /// a page whose process died is loaded again from `origin`. Call it when navigation is restricted.
    void guardWork(const std::string& origin);

    void setTitle(const std::string& title) override;
    void init(const std::string& script) override;
    void bind(const std::string& name, Handler handler) override;
    void bindThrowing(const std::string& name, Handler handler) override;
    void navigate(const std::string& url) override;
    void setSize(int width, int height) override;
    void run() override;

private:
    struct Library;
    std::unique_ptr<Library> library_;
};
