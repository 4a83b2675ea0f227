// Keeps calls one after the other where a running one lets others in.
#pragma once
#include <functional>
#include <queue>

/// Runs calls in the order they came, never one inside another. For one thread.
class CallQueue {
public:
    /// Runs `call` at once, or, from inside another call, as soon as those before it are done. `call` must not throw.
    void run(std::function<void()> call);

private:
    std::queue<std::function<void()>> waiting_;
    bool running_ = false;
};
