#include <mutex>
#include <set>

#include "server/ready_connections.h"

// A thread that waits for sockets does not notice that others have come: a datagram to itself interrupts it.
struct ReadyConnections::System {
    std::mutex mutex;
    std::set<socket_t> watched;
    socket_t toSelf = INVALID_SOCKET;
    bool isAwake = false;

    void interrupt() const { send(toSelf, "", 1, 0); }
};

static socket_t socketToSelf() {
    const SOCKET socket = WSASocketW(AF_INET, SOCK_DGRAM, IPPROTO_UDP, nullptr, 0, WSA_FLAG_NO_HANDLE_INHERIT);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    auto* const named = reinterpret_cast<sockaddr*>(&address);
    u_long on = 1;
    if (bind(socket, named, size) == 0 && getsockname(socket, named, &size) == 0 && connect(socket, named, size) == 0 &&
        ioctlsocket(socket, static_cast<long>(FIONBIO), &on) == 0) {
        return socket;
    }
    closesocket(socket);
    return INVALID_SOCKET;
}

ReadyConnections::ReadyConnections() : system_(std::make_unique<System>()) { system_->toSelf = socketToSelf(); }

ReadyConnections::~ReadyConnections() { closesocket(system_->toSelf); }

bool ReadyConnections::canWait() const { return system_->toSelf != INVALID_SOCKET; }

bool ReadyConnections::watch(socket_t connection) {
    if (!canWait()) return false;
    const std::lock_guard guard(system_->mutex);
    system_->watched.insert(connection);
    system_->interrupt();
    return true;
}

void ReadyConnections::forget(socket_t connection) {
    const std::lock_guard guard(system_->mutex);
    if (system_->watched.erase(connection) > 0) system_->interrupt();
}

const std::vector<socket_t>& ReadyConnections::wait() {
    ready_.clear();
    std::vector<WSAPOLLFD> asked;
    while (ready_.empty()) {
        asked.assign(1, {system_->toSelf, POLLIN, 0});
        {
            const std::lock_guard guard(system_->mutex);
            if (system_->isAwake) break;
            for (const socket_t each : system_->watched) asked.push_back({each, POLLIN, 0});
        }
        if (WSAPoll(asked.data(), static_cast<ULONG>(asked.size()), -1) < 0) Sleep(1);
        char byte = 0;
        while (recv(system_->toSelf, &byte, 1, 0) > 0) continue;
        const std::lock_guard guard(system_->mutex);
        for (auto each = asked.begin() + 1; each != asked.end(); ++each) {
            if (each->revents != 0 && system_->watched.erase(each->fd) > 0) ready_.push_back(each->fd);
        }
    }
    return ready_;
}

void ReadyConnections::wake() {
    const std::lock_guard guard(system_->mutex);
    system_->isAwake = true;
    system_->interrupt();
}
