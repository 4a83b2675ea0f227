#include "web_view.h"

#include <objbase.h>

#include <cstring>
#include <map>
#include <utility>

#include "driver.h"
#include "text.h"

static constexpr GUID messageHandlerId{0x57213F19, 0x00E6, 0x49FA, {0x8E, 0x07, 0x89, 0x8E, 0xA0, 0x1E, 0xCB, 0xD2}};
static constexpr GUID permissionHandlerId{0x15E1C6A3, 0xC72A, 0x4DF3, {0x91, 0xD7, 0xD0, 0x97, 0xFB, 0xEC, 0x6B, 0xFD}};

static constexpr GUID navigationHandlerId{0x9ADBE429, 0xF36D, 0x432B, {0x9D, 0xDC, 0xF8, 0x88, 0x1F, 0xBD, 0x76, 0xE3}};
static constexpr GUID newWindowHandlerId{0xD4C185FE, 0xC81C, 0x4989, {0x97, 0xAF, 0x2D, 0x3F, 0xA7, 0xAB, 0x56, 0x51}};

static constexpr GUID processFailedHandlerId{
    0x79E0AEA4, 0x990B, 0x42D9, {0xAA, 0x1D, 0x0F, 0xCC, 0x2E, 0x5B, 0xC7, 0xF1}};
static constexpr GUID executeScriptHandlerId{
    0x49511172, 0xCC67, 0x4BCA, {0x99, 0x23, 0x13, 0x71, 0x12, 0xF4, 0xC4, 0xCC}};

static Handler messageHandler;
static Handler navigationHandler;
static Handler newWindowHandler;
static Handler permissionHandler;
static Handler processFailedHandler;
static std::map<std::string, Handler> evaluations;
static std::wstring textForProgram;
static std::wstring title;
static bool prevented;
static int askedPermission;

static HRESULT subscribe(Handler& place, IUnknown* handler, const GUID& interfaceId, INT64* token) {
    place = handlerOf(handler, interfaceId);
    *token = 1;
    return place ? S_OK : E_NOINTERFACE;
}

static HRESULT report(const char* verb, PCWSTR text) {
    tellDriver(verb, utf8(text));
    return S_OK;
}

/// A script without a handler is "exec"; one whose result is wanted is "evaluate" with a number and a blank before it.
static HRESULT STDMETHODCALLTYPE executeScript(ComObject*, PCWSTR script, IUnknown* handler) {
    if (handler == nullptr) return report("exec", script);
    const Handler wanted = handlerOf(handler, executeScriptHandlerId);
    if (!wanted) return E_NOINTERFACE;
    static int count = 0;
    const std::string number = std::to_string(++count);
    evaluations[number] = wanted;
    tellDriver("evaluate", number + " " + utf8(script));
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE settingsOf(ComObject*, ComObject** result) {
    static ComObject settings("settings");
    settings.set(10, +[](ComObject*, BOOL on) -> HRESULT { return report("status-bar", on ? L"1" : L"0"); });
    settings.set(12, +[](ComObject*, BOOL on) -> HRESULT { return report("dev-tools", on ? L"1" : L"0"); });
    *result = &settings;
    return S_OK;
}

/// The caller frees the text with CoTaskMemFree.
static HRESULT give(const std::wstring& text, PWSTR* result) {
    const std::size_t bytes = (text.size() + 1) * sizeof text[0];
    *result = static_cast<PWSTR>(CoTaskMemAlloc(bytes));
    if (*result == nullptr) return E_OUTOFMEMORY;
    std::memcpy(*result, text.c_str(), bytes);
    return S_OK;
}

ComObject& webView() {
    static ComObject view("web-view");
    view.set(3, settingsOf);
    view.set(5, +[](ComObject*, PCWSTR address) -> HRESULT { return report("navigate", address); });
    view.set(6, +[](ComObject*, PCWSTR html) -> HRESULT { return report("html", html); });
    view.set(
        7, +[](ComObject*, IUnknown* handler, INT64* token) -> HRESULT {
            return subscribe(navigationHandler, handler, navigationHandlerId, token);
        });
    view.set(
        23, +[](ComObject*, IUnknown* handler, INT64* token) -> HRESULT {
            return subscribe(permissionHandler, handler, permissionHandlerId, token);
        });
    view.set(27, +[](ComObject*, PCWSTR script, IUnknown*) -> HRESULT { return report("init", script); });
    view.set(
        25, +[](ComObject*, IUnknown* handler, INT64* token) -> HRESULT {
            return subscribe(processFailedHandler, handler, processFailedHandlerId, token);
        });
    view.set(29, executeScript);
    view.set(33, +[](ComObject*, PCWSTR text) -> HRESULT { return report("echo", text); });
    view.set(
        34, +[](ComObject*, IUnknown* handler, INT64* token) -> HRESULT {
            return subscribe(messageHandler, handler, messageHandlerId, token);
        });
    view.set(
        44, +[](ComObject*, IUnknown* handler, INT64* token) -> HRESULT {
            return subscribe(newWindowHandler, handler, newWindowHandlerId, token);
        });
    view.set(48, +[](ComObject*, PWSTR* result) -> HRESULT { return give(title, result); });
    return view;
}

static HRESULT STDMETHODCALLTYPE giveText(ComObject*, PWSTR* result) { return give(textForProgram, result); }

void changeTitle(const std::string& text) { title = utf16(text); }

void postFromPage(const std::string& message) {
    if (!messageHandler) return;
    static ComObject arguments("message-arguments");
    arguments.set(5, giveText);
    textForProgram = utf16(message);
    invoke(messageHandler, &webView(), &arguments);
}

void finishEvaluation(const std::string& answer) {
    const std::size_t blank = answer.find(' ');
    const auto evaluation = evaluations.extract(answer.substr(0, blank));
    if (evaluation.empty()) return;
    const bool failed = blank == std::string::npos;
    const std::wstring json = failed ? std::wstring() : utf16(answer.substr(blank + 1));
    invoke(evaluation.mapped(), failed ? E_FAIL : HRESULT{S_OK}, failed ? nullptr : json.c_str());
}

void failProcess(int kind) {
    if (!processFailedHandler) return;
    static ComObject arguments("process-failed-arguments");
    static int failedKind;
    arguments.set(
        3, +[](ComObject*, int* result) -> HRESULT {
            *result = failedKind;
            return S_OK;
        });
    failedKind = kind;
    invoke(processFailedHandler, &webView(), &arguments);
}

static HRESULT STDMETHODCALLTYPE prevent(ComObject*, BOOL yes) {
    prevented = yes != FALSE;
    return S_OK;
}

/// Whether the program's handler lets go on what leads to this address.
static bool goesOn(const Handler& handler, ComObject& arguments, const std::string& address) {
    textForProgram = utf16(address);
    prevented = false;
    if (handler) invoke(handler, &webView(), &arguments);
    return !prevented;
}

void startNavigation(const std::string& address) {
    static ComObject arguments("navigation-arguments");
    arguments.set(3, giveText);
    arguments.set(8, prevent);
    tellDriver(goesOn(navigationHandler, arguments, address) ? "navigation-allowed" : "navigation-refused", address);
}

void requestNewWindow(const std::string& address) {
    static ComObject arguments("new-window-arguments");
    arguments.set(3, giveText);
    arguments.set(6, prevent);
    tellDriver(goesOn(newWindowHandler, arguments, address) ? "new-window-allowed" : "new-window-refused", address);
}

void askForPermission(int kind) {
    if (!permissionHandler) return;
    static ComObject arguments("permission-arguments");
    arguments.set(
        4, +[](ComObject*, int* result) -> HRESULT {
            *result = askedPermission;
            return S_OK;
        });
    arguments.set(
        7, +[](ComObject*, int state) -> HRESULT {
            tellDriver("permission-state", std::to_string(state));
            return S_OK;
        });
    askedPermission = kind;
    invoke(permissionHandler, &webView(), &arguments);
}
