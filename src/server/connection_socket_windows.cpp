#include <algorithm>
#include <chrono>
#include <thread>

#include "server/connection_queue.h"
#include "server/connection_socket.h"

void makeExclusive(socket_t listening) {
    const BOOL on = TRUE;
    setsockopt(listening, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&on), sizeof on);
}

static bool mayPass(int error) {
    return error == WSAECONNRESET || error == WSAEMFILE || error == WSAENOBUFS || error == WSAENETDOWN ||
           error == WSAEWOULDBLOCK;
}

socket_t acceptSocket(socket_t listening) {
    static constexpr std::chrono::milliseconds betweenTries{10};
    while (true) {
        const SOCKET socket = WSAAccept(listening, nullptr, nullptr, nullptr, 0);
        if (socket != INVALID_SOCKET) return socket;
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

int pollConnection(WSAPOLLFD* sockets, ULONG count, int milliseconds) {
    static constexpr int slice = 50;
    for (int waited = 0;; waited += slice) {
        const int ready = WSAPoll(sockets, count, std::min(slice, std::max(0, milliseconds - waited)));
        if (ready != 0 || waited + slice >= milliseconds) return ready;
        if (ConnectionQueue::hasEnded()) return SOCKET_ERROR;
    }
}

void stopReading(socket_t socket) { shutdown(socket, SD_RECEIVE); }

void shutdownSocket(socket_t socket) { shutdown(socket, SD_BOTH); }

void closeSocket(socket_t socket) { closesocket(socket); }
