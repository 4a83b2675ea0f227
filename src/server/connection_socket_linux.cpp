#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "server/connection_socket.h"

// Sockets are exclusive unless an option says otherwise.
bool makeExclusive(socket_t) { return true; }

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

ssize_t receiveAtOnce(socket_t socket, char* bytes, std::size_t size) {
    return recv(socket, bytes, size, MSG_DONTWAIT);
}

ssize_t sendAtOnce(socket_t socket, const char* bytes, std::size_t size) {
    return send(socket, bytes, size, MSG_DONTWAIT | MSG_NOSIGNAL);
}

bool isNotReady() { return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR; }

bool waitFor(socket_t socket, Direction direction, std::chrono::milliseconds patience) {
    pollfd asked{socket, static_cast<short>(direction == Direction::in ? POLLIN : POLLOUT), 0};
    const int ready = poll(&asked, 1, static_cast<int>(patience.count()));
    return ready > 0 || (ready < 0 && errno == EINTR);
}

void shutdownSocket(socket_t socket) { shutdown(socket, SHUT_RDWR); }

void closeSocket(socket_t socket) { close(socket); }
