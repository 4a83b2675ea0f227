// What the HTTP library reads a request from and writes its answer to.
#pragma once
#include <httplib.h>

#include <array>

/// Bytes from and to a connection, which is borrowed. Waits only where nothing comes or goes at once, and then as long
/// as the library's own streams do.
class ConnectionStream final : public httplib::Stream {
public:
    explicit ConnectionStream(socket_t connection) : connection_(connection) {}

    [[nodiscard]] bool is_readable() const override { return next_ < end_; }
    [[nodiscard]] bool wait_readable() const override;
    [[nodiscard]] bool wait_writable() const override;
    ssize_t read(char* bytes, std::size_t size) override;
    ssize_t write(const char* bytes, std::size_t size) override;
    using httplib::Stream::write;
    /// Nobody asks for addresses: these leave them as they are.
    void get_remote_ip_and_port(std::string&, int&) const override {}
    void get_local_ip_and_port(std::string&, int&) const override {}
    [[nodiscard]] socket_t socket() const override { return connection_; }
    /// Not measured.
    [[nodiscard]] time_t duration() const override { return 0; }

private:
    ssize_t receive(char* bytes, std::size_t size);

    const socket_t connection_;
    std::array<char, 4096> buffer_;  // not cleared: what was not received is not read
    std::size_t next_ = 0;
    std::size_t end_ = 0;
};
