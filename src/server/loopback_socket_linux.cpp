#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

#include "server/loopback_address.h"
#include "server/loopback_socket.h"

// Without the options for reuse, the address cannot be had a second time.
LoopbackSocket::LoopbackSocket(int family, std::uint16_t port)
    : socket_(socket(family, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    if (socket_ < 0) return;
    const LoopbackAddress address = loopbackAddress(family, port);
    if (bind(static_cast<int>(socket_), address.get(), address.length) == 0) {
        state_ = State::bound;
    } else if (errno == EADDRINUSE) {
        state_ = State::inUse;
    }
}

LoopbackSocket::~LoopbackSocket() {
    if (socket_ >= 0) close(static_cast<int>(socket_));
}
