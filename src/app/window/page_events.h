// What the host asks the page: scripts that send it cancelable events, and the answers that they give. A page that does
// not listen, as before its own code runs, answers nothing.
#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "app/window/page_window.h"

/// Whether the window may close. The page that has unsaved work answers with the question to ask.
[[nodiscard]] std::string closeEventScript();
[[nodiscard]] std::optional<DiscardQuestion> discardQuestionOf(const PageResult& answer);

/// The window closes for good: the page forgets what it keeps for reloads.
[[nodiscard]] std::string endEventScript();

/// Whether a page with this title has unsaved work: it marks its title then, so that it need not be asked.
[[nodiscard]] bool marksUnsavedWork(std::string_view title);

/// The work that no file holds.
struct UnsavedWork {
    enum class State {
        none,     ///< all is saved
        same,     ///< as the page gave it last
        changed,  ///< since then; only now name and text are given
    };
    State state = State::none;
    std::string name;  ///< of the document, in UTF-8
    std::string text;
};

/// Asks for the work, also where it is the same as before when `whole`.
[[nodiscard]] std::string workEventScript(bool whole);
/// Nothing when the page did not answer.
[[nodiscard]] std::optional<UnsavedWork> unsavedWorkOf(const PageResult& answer);
