// Whether the browser runtime that the window needs is installed.
#pragma once
#include <string>

/// Looks where the web-view library looks: at the loader DLL beside the program, then at the machine's and the user's
/// registry entries. Also checks that the DLL they name exists, which the library does not do before it relies on it.
[[nodiscard]] bool browserRuntimeInstalled();

/// Whether the last component of a runtime's folder is a version that the library accepts: its third number is at least
/// 1150, as in C:\Runtime\120.0.2210.91.
[[nodiscard]] bool isAcceptedRuntimeFolder(const std::wstring& folder);
