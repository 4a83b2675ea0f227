#include "app/window/work_keeper.h"

#include <utility>

#include "app/window/page_events.h"
#include "app/window/patient_question.h"

void WorkKeeper::start() {
    window_.after(copyInterval, [this] {
        if (hasWork_ || marksUnsavedWork(window_.title())) keepNow([this] { start(); });
        else start();
    });
}

void WorkKeeper::keepNow(std::function<void()> done) {
    askPage(window_, workEventScript(isWholeWanted_), [this, done = std::move(done)](const PageAnswer& answer) {
        take(answer.result);
        done();
    });
}

void WorkKeeper::take(const PageResult& answer) {
    const auto work = unsavedWorkOf(answer);
    if (!work) return;
    hasWork_ = work->state != UnsavedWork::State::none;
    if (work->state == UnsavedWork::State::none) {
        // What a page that was loaded again does not have may be lost everywhere else.
        if (std::exchange(isPageNew_, false)) return copy_.leave();
        return copy_.remove();
    }
    if (work->state == UnsavedWork::State::changed) isWholeWanted_ = !copy_.write(work->name, work->text);
    isPageNew_ = false;
}
