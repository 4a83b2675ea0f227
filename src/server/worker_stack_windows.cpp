#include "server/worker_stack.h"

// Threads take the size that the executable was linked with.
void reserveWorkerStack() {}
