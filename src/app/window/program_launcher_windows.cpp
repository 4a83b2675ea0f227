#include <windows.h>
// windows.h must come first
#include <shellapi.h>

#include <string>

#include "app/window/program_launcher.h"

void openInOwnWindow(const std::filesystem::path& executable, const std::filesystem::path& file) {
    // Neither can hold a quotation mark.
    std::wstring command = L"\"" + executable.wstring() + L"\" \"" + file.wstring() + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(executable.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                       &process) == FALSE) {
        return;
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

void showFolder(const std::filesystem::path& folder) {
    ShellExecuteW(nullptr, L"open", folder.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}
