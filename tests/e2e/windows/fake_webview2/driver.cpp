// Winsock's own header must come before windows.h.
#include <winsock2.h>
// clang-format keeps this order
#include <windows.h>

#include "driver.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <utility>

static SOCKET connection = INVALID_SOCKET;

static SOCKET connectedSocket(u_short port) {
    WSADATA ignored;
    if (WSAStartup(MAKEWORD(2, 2), &ignored) != 0) return INVALID_SOCKET;
    const SOCKET made = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (connect(made, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) return made;
    closesocket(made);
    return INVALID_SOCKET;
}

static void obeyLines(const std::function<void(const Line&)>& obey) {
    std::string pending;
    std::array<char, 65536> received;
    for (;;) {
        const int count = recv(connection, received.data(), static_cast<int>(received.size()), 0);
        if (count <= 0) break;
        const std::size_t searched = pending.size();
        pending.append(received.data(), static_cast<std::size_t>(count));
        std::size_t start = 0;
        for (std::size_t end; (end = pending.find('\n', std::max(start, searched))) != std::string::npos;
             start = end + 1) {
            obey(readLine(pending.substr(start, end - start)));
        }
        pending.erase(0, start);
    }
    // Nobody is left to end this process.
    TerminateProcess(GetCurrentProcess(), EXIT_FAILURE);
}

bool connectDriver(std::function<void(const Line&)> obey) {
    const char* port = std::getenv("TESSARY_TEST_RUNTIME_PORT");
    if (port == nullptr) return false;
    connection = connectedSocket(static_cast<u_short>(std::atoi(port)));
    if (connection == INVALID_SOCKET) return false;
    std::thread(obeyLines, std::move(obey)).detach();
    return true;
}

void tellDriver(const std::string& verb, const std::string& text) {
    static std::mutex oneLineAtATime;
    const std::lock_guard lock(oneLineAtATime);
    const std::string line = writtenLine({verb, text});
    for (std::size_t sent = 0; sent < line.size();) {
        const int count = send(connection, line.data() + sent, static_cast<int>(line.size() - sent), 0);
        if (count <= 0) return;
        sent += static_cast<std::size_t>(count);
    }
}
