// Whatever bytes reach the program's server, it answers or closes, and goes on serving the page.
#include <cstdlib>
#include <iostream>

#include "http/raw_connection.h"
#include "server/embedded_filesystem.h"
#include "server/local_server.h"
#include "support/input.h"

static std::string embedded(const char* path) {
    const EmbeddedFile file = getEmbeddedFilesystem().openEmbedded(path);
    return {file.begin(), file.end()};
}

static void start() {
    std::cout.rdbuf(nullptr);
    setupServer("");
    startServer();
    require(serverPort > 0, "the server finds a port");
    server.wait_until_ready();
    std::atexit(stopServer);
}

static std::string answerTo(std::string_view bytes) {
    const RawConnection connection(serverPort);
    connection.sendAll(bytes);
    return connection.received();
}

static void checkPageIsServed() {
    static const std::string page = embedded("dist/index.html");
    const std::string answer = answerTo("GET / HTTP/1.1\r\nHost: localhost\r\nConnection: close\r\n\r\n");
    require(answer.starts_with("HTTP/1.1 200 OK\r\n"), "the page is still served");
    require(answer.ends_with("\r\n\r\n" + page), "the page is still whole");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool started = (start(), true);
    static_cast<void>(started);
    static const std::string secret = embedded("package.json").substr(0, 80);

    const std::string answer = answerTo(textOf(data, size));
    require(answer.empty() || answer.starts_with("HTTP/1.1 "), "an answer is HTTP");
    require(answer.find(secret) == std::string::npos, "what lies outside of the page stays inside the program");
    checkPageIsServed();
    return 0;
}
