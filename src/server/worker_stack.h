// Room for the server's threads to match long paths.
#pragma once

/// Makes sure that threads started from now on have at least TESSARY_WORKER_STACK bytes of stack (cmake/options.cmake).
void reserveWorkerStack();
