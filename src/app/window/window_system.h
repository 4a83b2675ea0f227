// What the system must offer before a window can be made.
#pragma once
#include <optional>
#include <string>

/// One sentence for the user when no window can be shown here (no display, no web engine); nothing when all is well.
/// Also readies the window's icon. On the UI thread, before the first window.
[[nodiscard]] std::optional<std::string> prepareWindowSystem();

/// Shows a sentence that must not be missed where the user looks: in a message box, where there is a display, and on
/// the terminal, where this system's programs have one. Blocks until the box is closed.
void showStartupError(const std::string& sentence);
