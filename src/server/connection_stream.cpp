#include "server/connection_stream.h"

#include <algorithm>
#include <chrono>

#include "server/connection_socket.h"

static constexpr std::chrono::seconds readPatience{CPPHTTPLIB_SERVER_READ_TIMEOUT_SECOND};
static constexpr std::chrono::seconds writePatience{CPPHTTPLIB_SERVER_WRITE_TIMEOUT_SECOND};

bool ConnectionStream::wait_readable() const { return waitFor(connection_, Direction::in, readPatience); }

bool ConnectionStream::wait_writable() const { return waitFor(connection_, Direction::out, writePatience); }

ssize_t ConnectionStream::receive(char* bytes, std::size_t size) {
    ssize_t received = receiveAtOnce(connection_, bytes, size);
    while (received < 0 && isNotReady()) {
        if (!wait_readable()) break;
        received = receiveAtOnce(connection_, bytes, size);
    }
    if (received <= 0) error_ = received == 0 ? httplib::Error::ConnectionClosed : httplib::Error::Read;
    return received;
}

ssize_t ConnectionStream::read(char* bytes, std::size_t size) {
    if (!is_readable()) {
        if (size >= buffer_.size()) return receive(bytes, size);
        const ssize_t received = receive(buffer_.data(), buffer_.size());
        if (received <= 0) return received;
        next_ = 0;
        end_ = static_cast<std::size_t>(received);
    }
    const std::size_t given = std::min(size, end_ - next_);
    std::copy_n(buffer_.data() + next_, given, bytes);
    next_ += given;
    return static_cast<ssize_t>(given);
}

ssize_t ConnectionStream::write(const char* bytes, std::size_t size) {
    ssize_t sent = sendAtOnce(connection_, bytes, size);
    while (sent < 0 && isNotReady()) {
        if (!wait_writable()) break;
        sent = sendAtOnce(connection_, bytes, size);
    }
    return sent;
}
