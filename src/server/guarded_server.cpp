#include "server/guarded_server.h"

#include <list>
#include <utility>

#include "server/local_server.h"

static constexpr std::size_t mostTries = 8;

std::unique_ptr<LoopbackGuard> startGuardedServer() {
    // Ports that were refused are held until there is a good one: the system would give them again.
    std::list<LoopbackGuard> refused;
    while (true) {
        startServer();
        auto guard = std::make_unique<LoopbackGuard>(serverPort);
        if (!guard->otherAddressIsTaken() || refused.size() + 1 == mostTries) return guard;
        stopServer();
        refused.emplace_back(serverPort);
    }
}
