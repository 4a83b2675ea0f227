// The function that the program's loader looks for in the runtime's DLL.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "com_object.h"
#include "controller.h"
#include "driver.h"
#include "events.h"
#include "text.h"
#include "ui_thread.h"
#include "web_view.h"

static constexpr GUID environmentHandlerId{
    0x4E8A3389, 0xC9D8, 0x4BD2, {0xB6, 0xB5, 0x12, 0x4F, 0xEE, 0x6C, 0xC1, 0x4D}};

/// As the system does when the user logs out.
static void endSession() {
    if (SendMessageW(programWindow(), WM_QUERYENDSESSION, 0, ENDSESSION_LOGOFF) == FALSE) return;
    SendMessageW(programWindow(), WM_ENDSESSION, TRUE, ENDSESSION_LOGOFF);
}

static void obey(const Line& line) {
    onUiThread([line] {
        if (line.verb == "close") PostMessageW(programWindow(), WM_CLOSE, 0, 0);
        if (line.verb == "end-session") endSession();
        if (line.verb == "evaluated") raiseInTurn([line] { finishEvaluation(line.text); });
        if (line.verb == "title") changeTitle(line.text);
        if (line.verb == "process-failed") raiseInTurn([line] { failProcess(std::atoi(line.text.c_str())); });
        if (line.verb == "message") raiseInTurn([line] { postFromPage(line.text); });
        if (line.verb == "navigating") raiseInTurn([line] { startNavigation(line.text); });
        if (line.verb == "new-window") raiseInTurn([line] { requestNewWindow(line.text); });
        if (line.verb == "permission") raiseInTurn([line] { askForPermission(std::atoi(line.text.c_str())); });
    });
}

/// The loader frees the module as soon as it has called it once; the objects must outlive that.
static HMODULE pinnedModule() {
    HMODULE module = nullptr;
    const DWORD flags = GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS;
    GetModuleHandleExW(flags, reinterpret_cast<PCWSTR>(&obey), &module);
    return module;
}

extern "C" __declspec(dllexport) HRESULT STDMETHODCALLTYPE CreateWebViewEnvironmentWithOptionsInternal(
    bool checkRunningInstance, int runtimeType, PCWSTR userDataFolder, IUnknown* options, IUnknown* completed) {
    becomeUiThread(pinnedModule());
    if (!connectDriver(obey)) {
        std::fputs("The test runtime found no driver at TESSARY_TEST_RUNTIME_PORT.\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
    tellDriver("environment", std::to_string(checkRunningInstance) + " " + std::to_string(runtimeType) + " " +
                                  (options == nullptr ? "no-options" : "options") + " " + utf8(userDataFolder));
    const Handler handler = handlerOf(completed, environmentHandlerId);
    if (!handler) return E_NOINTERFACE;
    onUiThread([handler] { invoke(handler, HRESULT{S_OK}, &environment()); });
    return S_OK;
}
