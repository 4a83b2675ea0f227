#include <pthread.h>

#include <cstddef>

#include "server/worker_stack.h"

// The default follows the shell's stack limit, and is only 2 MiB where that is "unlimited".
void reserveWorkerStack() {
    static constexpr std::size_t wanted = TESSARY_WORKER_STACK;
    pthread_attr_t attributes;
    if (pthread_getattr_default_np(&attributes) != 0) return;
    std::size_t current = 0;
    pthread_attr_getstacksize(&attributes, &current);
    if (current < wanted && pthread_attr_setstacksize(&attributes, wanted) == 0) {
        pthread_setattr_default_np(&attributes);
    }
    pthread_attr_destroy(&attributes);
}
