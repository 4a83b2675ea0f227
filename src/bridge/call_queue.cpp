#include "bridge/call_queue.h"

#include <utility>

void CallQueue::run(std::function<void()> call) {
    waiting_.push(std::move(call));
    if (running_) return;
    running_ = true;
    while (!waiting_.empty()) {
        const auto next = std::move(waiting_.front());
        waiting_.pop();
        next();
    }
    running_ = false;
}
