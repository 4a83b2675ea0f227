// Requests that come in pieces, one after the other on a connection that is kept, are answered or the connection is
// closed, and the server goes on serving the page. Between two pieces, which NULs separate, the server has time to
// read.
#include <algorithm>
#include <chrono>
#include <thread>

#include "http/served_page.h"
#include "support/fuzz_target.h"
#include "support/input.h"

namespace fuzz_http_pieces {

FUZZ_TARGET(http_pieces) {
    startServerOnce();
    const std::string input = textOf(data, size);
    const auto pieces = std::min<std::ptrdiff_t>(std::count(input.begin(), input.end(), '\0') + 1, 20);
    Fields fields(data, size);
    const RawConnection connection(serverPort);
    for (std::ptrdiff_t piece = 0; piece < pieces; ++piece) {
        connection.sendAll(fields.next());
        std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    connection.finish();
    checkAnswer(connection.received());
    checkPageIsServed();
    return 0;
}

}  // namespace fuzz_http_pieces
