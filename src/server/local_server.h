// The program's HTTP server on the loopback interface, from start-up until the window closed. All four functions are
// called on the main thread, in the order below.
#pragma once
#include <cstdint>
#include <filesystem>
#include <string>
#include <thread>

#include "server/request_server.h"

extern RequestServer server;
extern std::thread serverThread;
extern std::int32_t serverPort;  ///< the bound port; -1 when binding failed
extern bool devMode;             ///< show the page from the page's own development server instead

/// Registers the route, the request log and the error texts. Once per process; `executablePath` is not used.
void setupServer(const std::filesystem::path& executablePath);
/// Binds to a free port of "localhost" and starts listening on a thread of its own. A failed bind shows in
/// `serverPort` alone. Throws std::system_error when the thread cannot be made.
void startServer();
/// "http://localhost:PORT", without a slash at the end.
[[nodiscard]] std::string getServerUrl();
/// Closes the socket and waits for the thread. Harmless when the server never ran, and when called again.
void stopServer();
