// A socket that keeps a loopback address from everybody.
#pragma once
#include <cstdint>

/// A TCP socket that is bound to a loopback address and never listens: connections to it are refused, and nobody else
/// can bind there. Closed with the object.
class LoopbackSocket {
public:
    enum class State {
        bound,
        inUse,        ///< some socket, of this program or another, has the address and port
        unavailable,  ///< this system has no such address
    };

    /// `family` is AF_INET for 127.0.0.1 or AF_INET6 for ::1.
    LoopbackSocket(int family, std::uint16_t port);
    ~LoopbackSocket();
    LoopbackSocket(const LoopbackSocket&) = delete;
    LoopbackSocket& operator=(const LoopbackSocket&) = delete;

    [[nodiscard]] State state() const { return state_; }

private:
    std::intptr_t socket_;
    State state_ = State::unavailable;
};
