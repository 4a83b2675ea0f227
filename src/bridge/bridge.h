// The five native functions that the page can call, and how their arguments are read.
#pragma once
#include <string>

class Documents;
class WebView;

/// Binds showOpenDialog, showSaveDialog, readFile and writeFile, in this order. `documents` is borrowed for as long as
/// the view lives.
void bindFileFunctions(WebView& view, Documents& documents);
/// Binds openExternalUrl.
void bindLinkOpener(WebView& view);

/// The handlers: JSON array text of the arguments in, envelope out (ASCII-only JSON).
/// The dialogs take what they can use and go by defaults for the rest; the file functions refuse a request that is not
/// what they need with "invalid-arguments".
[[nodiscard]] std::string showOpenDialog(const std::string& request);
[[nodiscard]] std::string showSaveDialog(const std::string& request);
[[nodiscard]] std::string readFile(const std::string& request, Documents& documents);
[[nodiscard]] std::string writeFile(const std::string& request, Documents& documents);
