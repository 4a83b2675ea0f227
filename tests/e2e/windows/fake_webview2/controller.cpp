#include "controller.h"

#include <string>

#include "driver.h"
#include "ui_thread.h"
#include "web_view.h"

static constexpr GUID controllerHandlerId{0x6C4819F3, 0xC9B7, 0x4260, {0x81, 0x27, 0xC9, 0xF5, 0xBD, 0xE7, 0xF6, 0x8C}};

static HWND parentWindow;

static HRESULT STDMETHODCALLTYPE setBounds(ComObject*, RECT bounds) {
    tellDriver("bounds", std::to_string(bounds.right - bounds.left) + " " + std::to_string(bounds.bottom - bounds.top));
    return S_OK;
}

static ComObject& controller() {
    static ComObject made("controller");
    made.set(6, setBounds);
    made.set(
        12, +[](ComObject*, int reason) -> HRESULT {
            tellDriver("focus", std::to_string(reason));
            return S_OK;
        });
    made.set(
        25, +[](ComObject*, ComObject** result) -> HRESULT {
            *result = &webView();
            return S_OK;
        });
    return made;
}

static HRESULT STDMETHODCALLTYPE createController(ComObject*, HWND parent, IUnknown* completed) {
    parentWindow = parent;
    tellDriver("create-controller");
    const Handler handler = handlerOf(completed, controllerHandlerId);
    if (!handler) return E_NOINTERFACE;
    onUiThread([handler] { invoke(handler, HRESULT{S_OK}, &controller()); });
    return S_OK;
}

ComObject& environment() {
    static ComObject made("environment");
    made.set(3, createController);
    return made;
}

HWND programWindow() { return parentWindow; }
