#include "server/request_server.h"

#include "server/connection_queue.h"
#include "server/connection_stream.h"

/// The library calls it when all headers are there.
static httplib::Server::HandlerResponse noteWholeRequest(const httplib::Request& request,
                                                         httplib::Response& /*response*/) {
    const bool hasBody = request.has_header("Content-Length") || request.has_header("Transfer-Encoding");
    if (!hasBody) ConnectionQueue::noteRequest();
    return httplib::Server::HandlerResponse::Unhandled;
}

RequestServer::RequestServer() { set_pre_routing_handler(noteWholeRequest); }

bool RequestServer::process_and_close_socket(socket_t connection) {
    ConnectionStream stream(connection);
    const bool isLast = ConnectionQueue::requestNumber() >= keep_alive_max_count_;
    bool isOver = false;
    const bool isAnswered = process_request(stream, {}, 0, {}, 0, isLast, isOver, nullptr);
    if (!isAnswered || isOver || isLast) ConnectionQueue::close(connection);
    return isAnswered;
}
