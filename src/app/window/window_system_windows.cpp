#include <windows.h>

#include "app/window/browser_runtime_windows.h"
#include "app/window/window_system.h"
#include "bridge/text/utf16_windows.h"

std::optional<std::string> prepareWindowSystem() {
    // The web-view library loads DLLs by bare name: never from the current folder or the search path.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
    if (browserRuntimeInstalled()) return std::nullopt;
    return "Tessary needs the Microsoft Edge WebView2 Runtime, which is not installed here: get it from "
           "https://developer.microsoft.com/microsoft-edge/webview2/ and start Tessary again.";
}

void showStartupError(const std::string& sentence) {
    MessageBoxW(nullptr, utf16FromUtf8(sentence).c_str(), L"Tessary", MB_OK | MB_ICONERROR);
}
