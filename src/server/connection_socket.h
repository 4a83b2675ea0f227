// What the server does to sockets, where systems differ.
#pragma once
#include <httplib.h>

#include <chrono>
#include <string>

/// A socket shares its address with nobody, before it is bound: a program that could bind there as well would be given
/// some of the page's requests, and its answers would be shown in the window. False where the system refuses.
bool makeExclusive(socket_t socket);

/// Waits for a connection. A failure that may pass is waited out; INVALID_SOCKET when the socket is closed.
[[nodiscard]] socket_t acceptSocket(socket_t listening);

/// What has come and was not read yet, up to some kilobytes. It stays there to be read.
[[nodiscard]] std::string peekAt(socket_t socket);

/// Receives or sends as much as is possible without waiting; negative when nothing is.
[[nodiscard]] ssize_t receiveAtOnce(socket_t socket, char* bytes, std::size_t size);
[[nodiscard]] ssize_t sendAtOnce(socket_t socket, const char* bytes, std::size_t size);
/// Whether the thread's last `receiveAtOnce` or `sendAtOnce` was negative for now alone.
[[nodiscard]] bool isNotReady();

enum class Direction { in, out };
/// Waits until bytes can come in or go out, or the connection has ended. False when `patience` was not enough.
[[nodiscard]] bool waitFor(socket_t socket, Direction direction, std::chrono::milliseconds patience);

/// No more goes in or out.
void shutdownSocket(socket_t socket);
void closeSocket(socket_t socket);
