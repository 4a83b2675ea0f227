#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "server/connection_socket.h"

// Sockets are exclusive unless an option says otherwise.
void makeExclusive(socket_t) {}

static bool mayPass(int error) { return error != EBADF && error != EINVAL && error != ENOTSOCK && error != EOPNOTSUPP; }

socket_t acceptSocket(socket_t listening) {
    // Without files or memory left, trying again at once would only keep a processor busy.
    static constexpr std::chrono::milliseconds betweenTries{10};
    while (true) {
        const int socket = accept4(listening, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket >= 0) return socket;
        if (!mayPass(errno)) return INVALID_SOCKET;
        if (errno != EINTR && errno != ECONNABORTED) std::this_thread::sleep_for(betweenTries);
    }
}

std::string peekAt(socket_t socket) {
    std::string bytes(1 << 13, '\0');
    const ssize_t count = recv(socket, bytes.data(), bytes.size(), MSG_PEEK | MSG_DONTWAIT);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

void stopReading(socket_t socket) { shutdown(socket, SHUT_RD); }

void shutdownSocket(socket_t socket) { shutdown(socket, SHUT_RDWR); }

void closeSocket(socket_t socket) { close(socket); }
