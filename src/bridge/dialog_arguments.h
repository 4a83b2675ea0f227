// What the page asks a dialog for. Every argument is optional; one that is missing or not a string keeps its default,
// and a request that is no array keeps them all.
#pragma once
#include <string>

#include "bridge/file_dialogs.h"

/// From [filter name, filter pattern].
[[nodiscard]] FileFilter openDialogArguments(const std::string& request);
/// From [default file name, filter name, filter pattern, default extension].
[[nodiscard]] SaveRequest saveDialogArguments(const std::string& request);
