// What went wrong with saves and has not been mended since, as the text of one notice.
#pragma once
#include <vector>

#include "app/window/notice.h"
#include "bridge/files/save_report.h"

class SaveProblems {
public:
    /// In place of an earlier failure of the same document.
    void add(const FailedSave& save);
    void add(const ReplacedText& text) { replaced_.push_back(text); }
    /// The document is saved by now. False when it had not failed before.
    bool mend(const std::filesystem::path& document);
    void clear();

    [[nodiscard]] bool empty() const { return failed_.empty() && replaced_.empty(); }
    /// Without buttons.
    [[nodiscard]] NoticeContent content() const;

private:
    std::vector<FailedSave> failed_;
    std::vector<ReplacedText> replaced_;
};
