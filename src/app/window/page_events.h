// What the host asks the page: scripts that send it cancelable events, and the answers that they give. A page that does
// not listen, as before its own code runs, answers nothing.
#pragma once
#include <optional>
#include <string>

#include "app/window/page_window.h"

/// Whether the window may close. The page that has unsaved work answers with the question to ask.
[[nodiscard]] std::string closeEventScript();
[[nodiscard]] std::optional<DiscardQuestion> discardQuestionOf(const PageResult& answer);

/// The window closes for good: the page forgets what it keeps for reloads.
[[nodiscard]] std::string endEventScript();
