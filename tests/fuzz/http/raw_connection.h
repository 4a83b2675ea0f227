// A client that sends any bytes to the program's server.
#pragma once
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
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
        useNextOwnAddress();
        require(::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0,
                "the server takes connections");
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
    /// The system holds a closed connection's port back for a minute, at its address alone: one address has too few
    /// ports for all that are closed in that time.
    void useNextOwnAddress() const {
        static std::uint32_t count = 0;
        sockaddr_in own{};
        own.sin_family = AF_INET;
        own.sin_addr.s_addr = htonl(INADDR_LOOPBACK + count++ % 200);
        const int yes = 1;
        ::setsockopt(socket_, IPPROTO_IP, IP_BIND_ADDRESS_NO_PORT, &yes, sizeof yes);
        require(::bind(socket_, reinterpret_cast<const sockaddr*>(&own), sizeof own) == 0,
                "the system has an address of its own for a client");
    }

    int socket_;
};
