#include "server/request_server.h"

#include "server/connection_queue.h"
#include "server/connection_stream.h"

RequestServer::RequestServer() {
    // The library deletes it.
    new_task_queue = [this] {
        return new ConnectionQueue([this](std::chrono::seconds time) { set_idle_interval(time); });
    };
}

bool RequestServer::process_and_close_socket(socket_t connection) {
    ConnectionStream stream(connection);
    const bool isLast = ConnectionQueue::requestNumber() >= keep_alive_max_count_;
    bool isOver = false;
    const bool isAnswered = process_request(stream, {}, 0, {}, 0, isLast, isOver, nullptr);
    if (!isAnswered || isOver || isLast) ConnectionQueue::close(connection);
    return isAnswered;
}
