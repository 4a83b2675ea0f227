#include "server/loopback_address.h"
#include "server/loopback_socket.h"

// Elsewhere an address in use is one that cannot be had again; here that must be asked for.
static bool makeExclusive(SOCKET socket) {
    const BOOL on = TRUE;
    return setsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&on), sizeof on) == 0;
}

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
