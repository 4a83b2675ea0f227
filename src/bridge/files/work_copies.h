// Copies of unsaved work in the rescue folder, at most one for each run of the program. A copy of a document called
// "notes.words.tessary" is "notes (unsaved).words.tessary", or has a number where that is another run's. A run holds a
// lock (run_lock.h) for as long as it has a copy: without one, its run has ended.
#pragma once
#include <optional>
#include <string>
#include <vector>

#include "bridge/files/rescue_folder.h"
#include "bridge/files/run_lock.h"

/// This run's copy. All operations block until the system has done its work; none throws.
class WorkCopy {
public:
    explicit WorkCopy(RescueFolder folder) : folder_(std::move(folder)) {}

    /// Writes the work of the document called `documentName`, in UTF-8. In place of the copy of other work, if there is
    /// one. False when the system did not take it; an older copy of the same document is there then.
    [[nodiscard]] bool write(const std::string& documentName, const std::string& text);
    /// Removes the copy: the work is saved, or given up.
    void remove();
    /// Gives the copy up as if the run had ended: it stays.
    void leave();
    [[nodiscard]] bool exists() const { return !name_.empty(); }

private:
    [[nodiscard]] bool takeName(const std::string& stem);

    RescueFolder folder_;
    std::string stem_;
    std::filesystem::path name_;
    RunLock lock_;
};

/// The copies whose runs have ended, in the order of their names.
[[nodiscard]] std::vector<RescuedText> leftWorkCopies(const RescueFolder& folder);

/// What a copy's name begins with: the document's name without its extension, with what no system takes in a name
/// replaced, and not too long.
[[nodiscard]] std::string stemOfWorkCopy(const std::string& documentName);
/// The name of the copy with this stem and number, counted from 1.
[[nodiscard]] std::string nameOfWorkCopy(const std::string& stem, int number);
/// Whether a file of the folder has the name of a copy.
[[nodiscard]] bool isNameOfWorkCopy(const std::string& name);
