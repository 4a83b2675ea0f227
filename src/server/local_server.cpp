#include "server/local_server.h"

#include "console/log.h"
#include "server/connection_queue.h"
#include "server/connection_socket.h"
#include "server/static_assets.h"

RequestServer server;
std::thread serverThread;
std::int32_t serverPort = 0;
bool devMode = false;

static constexpr std::int32_t developmentPort = 5173;

// Neither request line ends in a line break: one request's lines stand beside each other in the log.
static void logRequest(const httplib::Request& request, const httplib::Response& response) {
    logText("[HTTP] {} {} -> {}", request.method, request.path, response.status);
    ConnectionQueue::noteAnswer();
}

static std::string errorText(int status) {
    if (status == 404) return "Not Found";
    if (status == 500) return "Internal Server Error";
    return "Error: " + std::to_string(status);
}

static void answerError(const httplib::Request& request, httplib::Response& response) {
    logText("[HTTP-ERR] {} {} -> {}", request.method, request.path, response.status);
    response.set_content(errorText(response.status), "text/plain");
}

void setupServer(const std::filesystem::path& /*executablePath*/) {
    devMode = false;
    const EmbeddedFilesystem files = getEmbeddedFilesystem();
    logText("[Server] Release mode: serving embedded static files\n");
    server.Get(".*", [files](const httplib::Request& request, httplib::Response& response) {
        serveEmbeddedFile(files, request, response);
    });
    server.set_socket_options(makeExclusive);
    server.set_logger(logRequest);
    server.set_error_handler(
        [](const httplib::Request& request, httplib::Response& response) { answerError(request, response); });
}

void startServer() {
    serverPort = server.bind_to_any_port("localhost", 0);
    logText("[Server] Bound to port {}\n", serverPort);
    serverThread = std::thread([] { server.listen_after_bind(); });
}

std::string getServerUrl() { return "http://localhost:" + std::to_string(devMode ? developmentPort : serverPort); }

void stopServer() {
    // A stop that comes before the thread has begun to listen would be missed, and the join below would never end.
    if (serverThread.joinable()) server.wait_until_ready();
    server.stop();
    if (serverThread.joinable()) serverThread.join();
}
