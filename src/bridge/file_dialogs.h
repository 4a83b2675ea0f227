// The system's dialogs for choosing a file. They only choose: nothing is read or written. All texts are UTF-8.
#pragma once
#include <optional>
#include <string>
#include <vector>

/// The kind of file that the page asks for; patterns are joined by ";".
struct FileFilter {
    std::string name = "All Files";
    std::string pattern = "*.*";
};

struct SaveRequest {
    std::string defaultName;  ///< pre-filled in the name box
    FileFilter filter;
    std::string defaultExtension;  ///< without the leading dot; empty for none
};

/// One line of the dialog's list of filters.
struct FilterChoice {
    std::string text;     ///< as shown, such as "JSON (*.json;*.txt)"
    std::string pattern;  ///< one or more patterns joined by ";"
};

/// The list that a dialog offers, the first one chosen: the asked-for filter, unless its name or pattern is empty, then
/// "All Files (*.*)". With the defaults that entry stands there twice, which is meant so.
[[nodiscard]] std::vector<FilterChoice> filterChoices(const FileFilter& filter);

/// The same list as one text: text and pattern in turn, each ended by a NUL. With the terminating NUL of the string it
/// is what the Windows dialogs take.
[[nodiscard]] std::string filterList(const FileFilter& filter);

/// The patterns of a list joined by ";", without empty ones.
[[nodiscard]] std::vector<std::string> splitPatterns(const std::string& patterns);

/// `path` with the extension added when its last component has none, as the system's save dialog does on Windows.
/// An empty extension changes nothing.
[[nodiscard]] std::string withDefaultExtension(const std::string& path, const std::string& extension);

/// Blocks the UI thread until the dialog closes. Gives the chosen path; nothing after a cancel or a system failure.
[[nodiscard]] std::optional<std::string> askForFileToOpen(const FileFilter& filter);
/// The same for a place to save to; an existing file is chosen only after the user agreed to overwrite it.
[[nodiscard]] std::optional<std::string> askForFileToSave(const SaveRequest& request);

/// Whether the page's calls arrive while a dialog is open, so that they must be held back until it is closed.
[[nodiscard]] bool dialogsAreReentrant();
