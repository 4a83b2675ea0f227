#include <algorithm>
#include <chrono>
#include <thread>

#include "server/connection_queue.h"
#include "server/connection_socket.h"

bool makeExclusive(socket_t socket) {
    const BOOL on = TRUE;
    return setsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&on), sizeof on) == 0;
}

static bool mayPass(int error) {
    return error == WSAECONNRESET || error == WSAEMFILE || error == WSAENOBUFS || error == WSAENETDOWN ||
           error == WSAEWOULDBLOCK;
}

static SOCKET doesNotBlock(SOCKET socket) {
    u_long on = 1;
    ioctlsocket(socket, static_cast<long>(FIONBIO), &on);
    return socket;
}

socket_t acceptSocket(socket_t listening) {
    static constexpr std::chrono::milliseconds betweenTries{10};
    while (true) {
        const SOCKET socket = WSAAccept(listening, nullptr, nullptr, nullptr, 0);
        if (socket != INVALID_SOCKET) return doesNotBlock(socket);
        if (!mayPass(WSAGetLastError())) return INVALID_SOCKET;
        std::this_thread::sleep_for(betweenTries);
    }
}

std::string peekAt(socket_t socket) {
    // Without anything there, reading would block.
    u_long available = 0;
    if (ioctlsocket(socket, FIONREAD, &available) != 0 || available == 0) return {};
    std::string bytes(1 << 13, '\0');
    const int count = recv(socket, bytes.data(), static_cast<int>(bytes.size()), MSG_PEEK);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

ssize_t receiveAtOnce(socket_t socket, char* bytes, std::size_t size) {
    return recv(socket, bytes, static_cast<int>(size), 0);
}

ssize_t sendAtOnce(socket_t socket, const char* bytes, std::size_t size) {
    return send(socket, bytes, static_cast<int>(size), 0);
}

bool isNotReady() { return WSAGetLastError() == WSAEWOULDBLOCK; }

// A thread that waits for a socket does not notice that it was shut down.
bool waitFor(socket_t socket, Direction direction, std::chrono::milliseconds patience) {
    static constexpr std::chrono::milliseconds slice{50};
    WSAPOLLFD asked{socket, static_cast<SHORT>(direction == Direction::in ? POLLIN : POLLOUT), 0};
    for (; patience.count() > 0 && !ConnectionQueue::hasEnded(); patience -= slice) {
        const int ready = WSAPoll(&asked, 1, static_cast<INT>(std::min(slice, patience).count()));
        if (ready != 0) return ready > 0;
    }
    return false;
}

void shutdownSocket(socket_t socket) { shutdown(socket, SD_BOTH); }

void closeSocket(socket_t socket) { closesocket(socket); }
