#include "server/connection_socket.h"
#include "server/loopback_address.h"
#include "server/loopback_socket.h"

// The second is the answer when the other socket is exclusive too, or another user's (Winsock's documentation of bind).
static bool meansInUse(int error) { return error == WSAEADDRINUSE || error == WSAEACCES; }

LoopbackSocket::LoopbackSocket(int family, std::uint16_t port)
    : socket_(static_cast<std::intptr_t>(
          WSASocketW(family, SOCK_STREAM, IPPROTO_TCP, nullptr, 0, WSA_FLAG_NO_HANDLE_INHERIT))) {
    const auto handle = static_cast<SOCKET>(socket_);
    if (handle == INVALID_SOCKET || !makeExclusive(handle)) return;
    const LoopbackAddress address = loopbackAddress(family, port);
    if (bind(handle, address.get(), address.length) == 0) {
        state_ = State::bound;
    } else if (meansInUse(WSAGetLastError())) {
        state_ = State::inUse;
    }
}

LoopbackSocket::~LoopbackSocket() {
    const auto handle = static_cast<SOCKET>(socket_);
    if (handle != INVALID_SOCKET) closesocket(handle);
}
