// The program's real server under a fuzz target: started once, and asked for its page after each input.
#pragma once
#include <cstdlib>
#include <iostream>
#include <string>

#include "http/raw_connection.h"
#include "server/embedded_filesystem.h"
#include "server/local_server.h"

inline std::string embedded(const char* path) {
    const EmbeddedFile file = getEmbeddedFilesystem().openEmbedded(path);
    return {file.begin(), file.end()};
}

/// Starts the server at the first call. Its log goes nowhere.
inline void startServerOnce() {
    static const bool started = [] {
        std::cout.rdbuf(nullptr);
        setupServer("");
        startServer();
        require(serverPort > 0, "the server finds a port");
        server.wait_until_ready();
        std::atexit(stopServer);
        return true;
    }();
    static_cast<void>(started);
}

inline std::string answerTo(std::string_view bytes) {
    const RawConnection connection(serverPort);
    connection.sendAll(bytes);
    connection.finish();
    return connection.received();
}

/// `answer` is all that came back on a connection.
inline void checkAnswer(const std::string& answer) {
    static const std::string secret = embedded("package.json").substr(0, 80);
    require(answer.empty() || answer.starts_with("HTTP/1.1 "), "an answer is HTTP");
    require(answer.find(secret) == std::string::npos, "what lies outside of the page stays inside the program");
}

inline void checkPageIsServed() {
    static const std::string page = embedded("dist/index.html");
    const std::string answer = answerTo("GET / HTTP/1.1\r\nHost: localhost\r\nConnection: close\r\n\r\n");
    require(answer.starts_with("HTTP/1.1 200 OK\r\n"), "the page is still served");
    require(answer.ends_with("\r\n\r\n" + page), "the page is still whole");
}
