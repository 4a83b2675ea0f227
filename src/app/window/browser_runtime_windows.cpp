#include "app/window/browser_runtime_windows.h"

#include <windows.h>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <sstream>
#include <system_error>

static constexpr int leastBuild = 1150;

bool isAcceptedRuntimeFolder(const std::wstring& folder) {
    const std::size_t slash = folder.find_last_of(L'\\');
    if (slash == std::wstring::npos) return false;
    std::wistringstream version(folder.substr(slash + 1));
    int major = 0;
    int minor = 0;
    int build = 0;
    wchar_t dot = 0;
    return (version >> major >> dot >> minor >> dot >> build) && build >= leastBuild;
}

static std::optional<std::wstring> registeredFolder(HKEY root) {
    static constexpr const wchar_t* key =
        L"SOFTWARE\\Microsoft\\EdgeUpdate\\ClientState\\{F3017226-FE2A-4295-8BDF-00C3A9A7E4C5}";
    wchar_t folder[MAX_PATH] = {};
    DWORD size = sizeof folder - sizeof folder[0];
    const LSTATUS status =
        RegGetValueW(root, key, L"EBWebView", RRF_RT_REG_SZ | RRF_SUBKEY_WOW6432KEY, nullptr, folder, &size);
    if (status != ERROR_SUCCESS || !isAcceptedRuntimeFolder(folder)) return std::nullopt;
    return folder;
}

static bool holdsRuntime(const std::wstring& folder) {
    std::error_code ignored;
    return std::filesystem::exists(folder + L"\\EBWebView\\x64\\EmbeddedBrowserWebView.dll", ignored);
}

static bool loaderBesideProgram() {
    const HMODULE loader = LoadLibraryW(L"WebView2Loader.dll");
    if (loader != nullptr) FreeLibrary(loader);
    return loader != nullptr;
}

bool browserRuntimeInstalled() {
    if (loaderBesideProgram()) return true;
    // A user's entry counts only when the machine has none, as in the library.
    auto folder = registeredFolder(HKEY_LOCAL_MACHINE);
    if (!folder) folder = registeredFolder(HKEY_CURRENT_USER);
    return folder && holdsRuntime(*folder);
}
