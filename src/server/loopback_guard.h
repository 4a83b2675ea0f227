// "localhost" means 127.0.0.1 and ::1, and the server listens at one of them. Web engines try both, so a program that
// listened at the other with the server's port could be shown in the window.
#pragma once
#include <cstdint>
#include <optional>

#include "server/loopback_socket.h"

/// Holds the loopback address that the server with this port does not have, for as long as the object lives.
class LoopbackGuard {
public:
    /// A port below 1, which a server without an address has, holds nothing.
    explicit LoopbackGuard(std::int32_t boundPort);

    /// Another program has the address already.
    [[nodiscard]] bool otherAddressIsTaken() const;

private:
    std::optional<LoopbackSocket> version4_;
    std::optional<LoopbackSocket> version6_;
};
