#include "app/window/window_closer.h"

#include "app/window/page_events.h"
#include "app/window/patient_question.h"

void WindowCloser::requestClose() {
    if (stage_ != Stage::open) return;
    stage_ = Stage::askingPage;
    askPage(window_, closeEventScript(), [this](const PageAnswer& answer) {
        if (stage_ != Stage::askingPage) return;
        if (const auto question = discardQuestionOf(answer.result)) return ask(*question);
        stage_ = Stage::ending;
        if (!answer.result) return window_.close();
        keeper_.discard();
        end();
    });
}

void WindowCloser::ask(const DiscardQuestion& question) {
    stage_ = Stage::askingUser;
    window_.askToDiscard(question, [this](bool discard) {
        if (stage_ != Stage::askingUser) return;
        stage_ = discard ? Stage::ending : Stage::open;
        if (!discard) return;
        keeper_.discard();
        end();
    });
}

void WindowCloser::requestEnd() {
    if (stage_ == Stage::ending) return;
    stage_ = Stage::ending;
    window_.cancelDialogs();
    keeper_.keepNow([this] { end(); });
}

void WindowCloser::end() {
    askPage(window_, endEventScript(), [this](const PageAnswer&) { window_.close(); });
}
