#include "server/loopback_guard.h"

#include <httplib.h>

LoopbackGuard::LoopbackGuard(std::int32_t boundPort) {
    if (boundPort < 1) return;
    const auto port = static_cast<std::uint16_t>(boundPort);
    version4_.emplace(AF_INET, port);
    version6_.emplace(AF_INET6, port);
}

bool LoopbackGuard::otherAddressIsTaken() const {
    // One of the two is the server's own.
    const auto inUse = [](const std::optional<LoopbackSocket>& socket) {
        return socket && socket->state() == LoopbackSocket::State::inUse;
    };
    return inUse(version4_) && inUse(version6_);
}
