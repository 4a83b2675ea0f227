// The HTTP library's server, asked for one request at a time.
#pragma once
#include <httplib.h>

/// Its connections belong to a ConnectionQueue, which calls it for each request.
class RequestServer final : public httplib::Server {
public:
    RequestServer();

private:
    /// Answers one request, and closes the connection when it was the last, or none.
    bool process_and_close_socket(socket_t connection) override;
};
