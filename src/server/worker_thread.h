// Threads with room to match long paths, whose failure to start is a value.
#pragma once
#include <pthread.h>

#include <optional>

/// Starts a thread that calls `run` with `argument`, on a stack of at least TESSARY_WORKER_STACK bytes
/// (cmake/options.cmake). It has to be joined. Nothing when the system has no thread left to give.
[[nodiscard]] std::optional<pthread_t> startWorkerThread(void* (*run)(void*), void* argument);
