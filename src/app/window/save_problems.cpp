#include "app/window/save_problems.h"

#include <algorithm>
#include <set>
#include <string>

#include "bridge/text/native_path.h"

void SaveProblems::add(const FailedSave& save) {
    mend(save.document);
    failed_.push_back(save);
}

bool SaveProblems::mend(const std::filesystem::path& document) {
    return std::erase_if(failed_, [&](const FailedSave& save) { return save.document == document; }) > 0;
}

void SaveProblems::clear() { *this = {}; }

static std::string describe(const FailedSave& save) {
    const std::string start = utf8FromPath(save.document) + "\n" + save.reason + ". ";
    if (save.text.empty()) {
        return start + "The text could not be kept on the disk and is in the window only: save it under another name.";
    }
    return start + "The whole text is in this file, which opens like any document:\n" + utf8FromPath(save.text);
}

static std::string describe(const ReplacedText& text) {
    const std::string start = utf8FromPath(text.document) +
                              "\nAnother program changed it since it was opened or saved here. It holds what was saved "
                              "here now. ";
    if (text.kept.empty()) return start + "The other text could not be kept: " + text.reason + ".";
    return start + "The other text is kept in this file:\n" + utf8FromPath(text.kept);
}

template <typename Problem>
static std::string subject(const std::vector<Problem>& problems, const char* one, const char* several) {
    std::set<std::filesystem::path> documents;
    for (const Problem& problem : problems) documents.insert(problem.document);
    if (documents.size() > 1) return std::to_string(documents.size()) + " documents " + several;
    return "\u201C" + utf8FromPath(documents.begin()->filename()) + "\u201D " + one;
}

NoticeContent SaveProblems::content() const {
    NoticeContent notice;
    if (!failed_.empty()) notice.heading = subject(failed_, "could not be saved", "could not be saved");
    else if (!replaced_.empty()) {
        notice.heading = subject(replaced_, "was changed by another program", "were changed by another program");
    }
    if (!failed_.empty()) notice.text = "The window shows it as saved, but not all of it is in the file.";
    const auto append = [&notice](const std::string& paragraph) {
        if (!notice.text.empty()) notice.text += "\n\n";
        notice.text += paragraph;
    };
    for (const FailedSave& save : failed_) append(describe(save));
    for (const ReplacedText& text : replaced_) append(describe(text));
    return notice;
}
