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
    // Whatever comes first takes the function; the other one finds it gone.
    const auto waiting = std::make_shared<std::function<void()>>(std::move(done));
    const auto goOn = [waiting] {
        if (const auto taken = std::exchange(*waiting, nullptr)) taken();
    };
    window_.after(pagePatience, goOn);
    const auto takeAnswer = [this, goOn, wanted = std::weak_ptr(asking_)](const PageResult& result) {
        if (!wanted.expired()) take(result);
        goOn();
    };
    window_.evaluate(workEventScript(isWholeWanted_), takeAnswer);
}

void WorkKeeper::discard() {
    asking_ = std::make_shared<const bool>(true);
    copy_.remove();
}

void WorkKeeper::take(const PageResult& answer) {
    const auto work = unsavedWorkOf(answer);
    if (!work) {
        isWholeWanted_ = true;
        return;
    }
    hasWork_ = work->state != UnsavedWork::State::none;
    if (work->state == UnsavedWork::State::none) {
        // What a page that was loaded again does not have may be lost everywhere else.
        if (std::exchange(isPageNew_, false)) return copy_.leave();
        return copy_.remove();
    }
    if (work->state == UnsavedWork::State::changed) isWholeWanted_ = !copy_.write(work->name, work->text);
    isPageNew_ = false;
}
