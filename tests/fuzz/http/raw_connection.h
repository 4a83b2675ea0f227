// A client that sends any bytes to the program's server.
#pragma once
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "support/require.h"

/// A connection to a port of this machine, closed with the object.
class RawConnection {
public:
    explicit RawConnection(int port) : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        const timeval patience{30, 0};
        ::setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
        require(connectTo(address), "the server takes connections");
    }
    ~RawConnection() { ::close(socket_); }
    RawConnection(const RawConnection&) = delete;
    RawConnection& operator=(const RawConnection&) = delete;

    /// Sends everything, unless the server closes before.
    void sendAll(std::string_view bytes) const {
        while (!bytes.empty()) {
            const ssize_t sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent < 0 && errno == EINTR) continue;
            if (sent <= 0) break;
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        }
    }

    /// Says that no more will come.
    void finish() const { ::shutdown(socket_, SHUT_WR); }

    /// All that the server sends until it closes.
    [[nodiscard]] std::string received() const {
        std::string all;
        char piece[1 << 16];
        for (;;) {
            const ssize_t got = ::recv(socket_, piece, sizeof piece, 0);
            if (got == 0) return all;
            if (got < 0 && errno == EINTR) continue;  // by the fuzzer's timer
            if (got < 0) {
                require(errno != EAGAIN, "the server answers or closes within 30 seconds");
                return all;
            }
            all.append(piece, static_cast<std::size_t>(got));
        }
    }

private:
    [[nodiscard]] bool connectTo(const sockaddr_in& address) const {
        if (::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) return true;
        if (errno != EINTR) {
            std::perror("connect");
            return false;
        }
        // By the fuzzer's timer: the system goes on connecting.
        pollfd waiting{socket_, POLLOUT, 0};
        while (::poll(&waiting, 1, 30'000) < 0 && errno == EINTR) continue;
        int failure = 0;
        socklen_t size = sizeof failure;
        ::getsockopt(socket_, SOL_SOCKET, SO_ERROR, &failure, &size);
        return failure == 0 && (waiting.revents & POLLOUT) != 0;
    }

    int socket_;
};
