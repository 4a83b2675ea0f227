// What the host asks of the window and the page in it. Used on the UI thread only.
#pragma once
#include <functional>
#include <string>

class WebView {
public:
    /// Takes the JSON array text of a call's arguments; gives the answer as JSON text.
    using Handler = std::function<std::string(const std::string&)>;

    virtual ~WebView() = default;

    virtual void setTitle(const std::string& title) = 0;
    /// Adds a script that runs in every page that is loaded from now on, before the page's own ones. UTF-8; bytes that
    /// are not are replaced.
    virtual void init(const std::string& script) = 0;
    /// Makes `name` a function of the page's window. Its promise resolves with the answer. `handler` must not throw.
    virtual void bind(const std::string& name, Handler handler) = 0;
    /// The same for a handler that may throw std::exception: its message becomes the reason of a rejected promise.
    virtual void bindThrowing(const std::string& name, Handler handler) = 0;
    virtual void navigate(const std::string& url) = 0;
    /// In pixels; the user may change it freely.
    virtual void setSize(int width, int height) = 0;
    /// Returns when the window was closed.
    virtual void run() = 0;
};
