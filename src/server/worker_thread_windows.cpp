#include "server/worker_thread.h"

// Threads take the stack that the executable was linked with: a size given here would be committed, not only reserved.
std::optional<pthread_t> startWorkerThread(void* (*run)(void*), void* argument) {
    pthread_t thread{};
    if (pthread_create(&thread, nullptr, run, argument) != 0) return std::nullopt;
    return thread;
}
