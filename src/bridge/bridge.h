// The five native functions that the page can call, and how their arguments are read.
#pragma once
#include <string>

class WebView;

/// Binds showOpenDialog, showSaveDialog, readFile and writeFile, in this order.
void bindFileFunctions(WebView& view);
/// Binds openExternalUrl.
void bindLinkOpener(WebView& view);

/// The handlers: JSON array text of the arguments in, envelope out (ASCII-only JSON).
/// The dialogs take what they can use and go by defaults for the rest; the file functions refuse a request that is not
/// what they need with "invalid-arguments".
[[nodiscard]] std::string showOpenDialog(const std::string& request);
[[nodiscard]] std::string showSaveDialog(const std::string& request);
[[nodiscard]] std::string readFile(const std::string& request);
[[nodiscard]] std::string writeFile(const std::string& request);
