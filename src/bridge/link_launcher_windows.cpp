#include <windows.h>
// windows.h must come first
#include <shellapi.h>

#include "bridge/link_opener.h"

bool launchUrl(const std::string& url) {
    // Above 32 means success: the value is no real handle (ShellExecute's documentation).
    const HINSTANCE result = ShellExecuteA(nullptr, "open", url.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(result) > 32;
}
