// The server's start, so that nobody else can pass for it.
#pragma once
#include <memory>

#include "server/loopback_guard.h"

/// Starts the server. Where another program listens at the other loopback address of its port, it starts again at
/// another port, 8 in all. The guard keeps the other address; it says whether that was taken at the last port, too: no
/// page may be shown then. Throws what `startServer` throws.
[[nodiscard]] std::unique_ptr<LoopbackGuard> startGuardedServer();
