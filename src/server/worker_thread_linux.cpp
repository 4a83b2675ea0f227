#include <cstddef>

#include "server/worker_thread.h"

std::optional<pthread_t> startWorkerThread(void* (*run)(void*), void* argument) {
    static constexpr std::size_t wanted = TESSARY_WORKER_STACK;
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0) return std::nullopt;
    // The default follows the shell's stack limit, and may be larger.
    std::size_t size = 0;
    pthread_attr_getstacksize(&attributes, &size);
    if (size < wanted) pthread_attr_setstacksize(&attributes, wanted);
    pthread_t thread{};
    const int failure = pthread_create(&thread, &attributes, run, argument);
    pthread_attr_destroy(&attributes);
    if (failure != 0) return std::nullopt;
    return thread;
}
