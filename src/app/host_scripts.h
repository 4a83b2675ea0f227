// The two scripts by which the page learns about its host before its own code runs.
#pragma once
#include <optional>
#include <string>

#include "app/command_line.h"

class WebView;

/// Adds the script that defines `window.tessary`.
void injectHostInfo(WebView& view);
/// Adds the script that sets `window.tessary.args`, and logs the file to open or the error.
void injectLaunchArgs(WebView& view, const LaunchArgs& args);

/// The scripts' texts.
[[nodiscard]] std::string hostInfoScript(const std::optional<std::string>& packageFullName);
[[nodiscard]] std::string launchArgsScript(const LaunchArgs& args);

/// The full name of the store package that the process runs from, in UTF-8; nothing for an ordinary program.
[[nodiscard]] std::optional<std::string> currentPackageFullName();

/// A single-quoted script literal, or the word null.
[[nodiscard]] std::string toJsStringOrNull(const std::optional<std::string>& text);
/// Puts a backslash before each backslash and single quote. Line breaks stay as they are, so a text that has any makes
/// a script that does not parse: the page takes its absence for "no arguments".
[[nodiscard]] std::string escapeJsSingleQuoted(const std::string& text);
