// What the common dialogs are given.
#pragma once
#include <windows.h>
// windows.h must come first
#include <commdlg.h>

#include <array>
#include <string>

#include "bridge/file_dialogs.h"

/// UTF-16 units with the terminator: the traditional path limit.
using FileNameBuffer = std::array<wchar_t, MAX_PATH>;

/// The filter list in UTF-16: NUL after each text and pattern, the string's own terminator ends it.
[[nodiscard]] std::wstring filterString(const FileFilter& filter);

/// The buffer with `name` (UTF-8) in it; empty when the name does not fit.
[[nodiscard]] FileNameBuffer preFilledName(const std::string& name);

/// The dialogs' structures. Both keep pointers to their arguments.
[[nodiscard]] OPENFILENAMEW openDialogRequest(const std::wstring& filters, FileNameBuffer& name);
[[nodiscard]] OPENFILENAMEW saveDialogRequest(const std::wstring& filters, FileNameBuffer& name,
                                              const std::wstring& defaultExtension);
