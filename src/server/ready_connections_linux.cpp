#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>

#include "server/ready_connections.h"

struct ReadyConnections::System {
    int queue = epoll_create1(EPOLL_CLOEXEC);
    int waking = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
};

static bool control(int queue, int operation, int file, std::uint32_t events) {
    epoll_event wanted{};
    wanted.events = events;
    wanted.data.fd = file;
    return epoll_ctl(queue, operation, file, &wanted) == 0;
}

ReadyConnections::ReadyConnections() : system_(std::make_unique<System>()) {
    static_cast<void>(control(system_->queue, EPOLL_CTL_ADD, system_->waking, EPOLLIN));
}

ReadyConnections::~ReadyConnections() {
    if (system_->queue >= 0) close(system_->queue);
    if (system_->waking >= 0) close(system_->waking);
}

bool ReadyConnections::canWait() const { return system_->queue >= 0 && system_->waking >= 0; }

bool ReadyConnections::watch(socket_t connection) {
    if (!canWait()) return false;
    static constexpr std::uint32_t once = EPOLLIN | EPOLLONESHOT;
    return control(system_->queue, EPOLL_CTL_MOD, connection, once) ||
           (errno == ENOENT && control(system_->queue, EPOLL_CTL_ADD, connection, once));
}

// The system forgets what is closed.
void ReadyConnections::forget(socket_t) {}

const std::vector<socket_t>& ReadyConnections::wait() {
    std::array<epoll_event, 256> events{};
    ready_.clear();
    const int count = epoll_wait(system_->queue, events.data(), static_cast<int>(events.size()), -1);
    for (int i = 0; i < count; ++i) {
        const int file = events.at(static_cast<std::size_t>(i)).data.fd;
        if (file != system_->waking) ready_.push_back(file);
    }
    return ready_;
}

void ReadyConnections::wake() {
    static constexpr std::uint64_t one = 1;
    static_cast<void>(!write(system_->waking, &one, sizeof one));
}
