// Tells which connections have something to read, so that no thread is needed for those that have nothing.
#pragma once
#include <httplib.h>

#include <memory>
#include <vector>

class ReadyConnections {
public:
    ReadyConnections();
    ~ReadyConnections();
    ReadyConnections(const ReadyConnections&) = delete;
    ReadyConnections& operator=(const ReadyConnections&) = delete;

    /// Whether the system has what is needed for all of the following.
    [[nodiscard]] bool canWait() const;
    /// From now on `wait` gives this connection, once, when something has come or its client has ended it. False when
    /// the system cannot watch it. Safe from any thread.
    [[nodiscard]] bool watch(socket_t connection);
    /// `wait` does not give this connection any more, unless it has it already. To be called before it is closed. Safe
    /// from any thread.
    void forget(socket_t connection);
    /// Blocks until there are such connections, and gives them; none after a `wake`. The result is good until the next
    /// call. One thread at a time.
    [[nodiscard]] const std::vector<socket_t>& wait();
    /// Ends all waiting, also that to come. Safe from any thread.
    void wake();

private:
    struct System;
    std::unique_ptr<System> system_;
    std::vector<socket_t> ready_;
};
