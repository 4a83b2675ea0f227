#include "events.h"

#include <deque>
#include <utility>

void raiseInTurn(std::function<void()> event) {
    static std::deque<std::function<void()>> waiting;
    static bool handlerOnStack = false;
    waiting.push_back(std::move(event));
    if (handlerOnStack) return;
    handlerOnStack = true;
    while (!waiting.empty()) {
        const auto next = std::move(waiting.front());
        waiting.pop_front();
        next();
    }
    handlerOnStack = false;
}
