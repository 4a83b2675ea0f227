// src/server/worker_stack.h: room for the server's threads to match long paths.
#pragma once

/// Makes sure that threads started from now on have at least 16 MiB of stack. The standard library's regular
/// expressions recurse once per character of a request path, and a path may have 8,191 of them.
void reserveWorkerStack();
