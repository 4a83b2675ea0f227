#include "bridge/file_dialogs_windows.h"

#include "bridge/text/utf16_windows.h"

std::wstring filterString(const FileFilter& filter) { return utf16FromUtf8(filterList(filter)); }

FileNameBuffer preFilledName(const std::string& name) {
    FileNameBuffer buffer{};
    const int capacity = static_cast<int>(buffer.size());
    // A conversion that fails half-way leaves text without a terminator.
    if (!name.empty() && MultiByteToWideChar(CP_UTF8, 0, name.c_str(), -1, buffer.data(), capacity) == 0) buffer = {};
    return buffer;
}

static OPENFILENAMEW dialogRequest(const std::wstring& filters, FileNameBuffer& name, DWORD flags) {
    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.lpstrFilter = filters.c_str();
    request.nFilterIndex = 1;
    request.lpstrFile = name.data();
    request.nMaxFile = static_cast<DWORD>(name.size());
    request.Flags = flags | OFN_PATHMUSTEXIST | OFN_NOCHANGEDIR;
    return request;
}

OPENFILENAMEW openDialogRequest(const std::wstring& filters, FileNameBuffer& name) {
    return dialogRequest(filters, name, OFN_FILEMUSTEXIST);
}

OPENFILENAMEW saveDialogRequest(const std::wstring& filters, FileNameBuffer& name,
                                const std::wstring& defaultExtension) {
    OPENFILENAMEW request = dialogRequest(filters, name, OFN_OVERWRITEPROMPT);
    if (!defaultExtension.empty()) request.lpstrDefExt = defaultExtension.c_str();
    return request;
}

std::optional<std::string> askForFileToOpen(const FileFilter& filter) {
    const std::wstring filters = filterString(filter);
    FileNameBuffer name{};
    OPENFILENAMEW request = openDialogRequest(filters, name);
    if (GetOpenFileNameW(&request) != TRUE) return std::nullopt;
    return utf8FromUtf16(name.data());
}

std::optional<std::string> askForFileToSave(const SaveRequest& save) {
    FileNameBuffer name = preFilledName(save.defaultName);
    const std::wstring filters = filterString(save.filter);
    const std::wstring extension = utf16FromUtf8(save.defaultExtension);
    OPENFILENAMEW request = saveDialogRequest(filters, name, extension);
    if (GetSaveFileNameW(&request) != TRUE) return std::nullopt;
    return utf8FromUtf16(name.data());
}

// The web view raises no event while one of its handlers runs, and the dialogs run inside a handler.
bool dialogsAreReentrant() { return false; }
