#include "app/window/save_notice.h"

// Who closes the notice has read it.
void SaveNotice::forgetWhatWasClosed() {
    if (!notice_.isShown()) problems_.clear();
}

void SaveNotice::failed(const FailedSave& save) {
    forgetWhatWasClosed();
    problems_.add(save);
    notice_.show(problems_.content());
}

void SaveNotice::replaced(const ReplacedText& text) {
    forgetWhatWasClosed();
    problems_.add(text);
    notice_.show(problems_.content());
}

void SaveNotice::saved(const std::filesystem::path& document) {
    forgetWhatWasClosed();
    if (!problems_.mend(document)) return;
    if (problems_.empty()) notice_.close();
    else notice_.show(problems_.content());
}
