// A loopback address in the form that sockets take, on every system.
#pragma once
#include <httplib.h>

#include <cstdint>

struct LoopbackAddress {
    sockaddr_storage storage{};
    socklen_t length = 0;

    [[nodiscard]] const sockaddr* get() const { return reinterpret_cast<const sockaddr*>(&storage); }
};

/// 127.0.0.1 for AF_INET, ::1 for AF_INET6.
inline LoopbackAddress loopbackAddress(int family, std::uint16_t port) {
    LoopbackAddress address;
    if (family == AF_INET) {
        auto* version4 = reinterpret_cast<sockaddr_in*>(&address.storage);
        version4->sin_family = AF_INET;
        version4->sin_port = htons(port);
        version4->sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.length = sizeof *version4;
        return address;
    }
    auto* version6 = reinterpret_cast<sockaddr_in6*>(&address.storage);
    version6->sin6_family = AF_INET6;
    version6->sin6_port = htons(port);
    version6->sin6_addr = IN6ADDR_LOOPBACK_INIT;
    address.length = sizeof *version6;
    return address;
}
