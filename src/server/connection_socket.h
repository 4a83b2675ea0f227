// What the server does to sockets, where systems differ.
#pragma once
#include <httplib.h>

#include <string>

/// A listening socket shares its address with nobody: a program that could bind there as well would be given some of
/// the page's requests, and its answers would be shown in the window.
void makeExclusive(socket_t listening);

/// Waits for a connection. A failure that may pass is waited out; INVALID_SOCKET when the socket is closed.
[[nodiscard]] socket_t acceptSocket(socket_t listening);

/// What has come and was not read yet, up to some kilobytes. It stays there to be read.
[[nodiscard]] std::string peekAt(socket_t socket);

/// What is sent from now on is not read any more; what is written still goes out.
void stopReading(socket_t socket);

/// No more goes in or out.
void shutdownSocket(socket_t socket);
void closeSocket(socket_t socket);

#ifdef _WIN32
/// WSAPoll that fails soon after the queue has ended the connection that the calling thread serves: on this system a
/// thread that waits for a socket does not notice that it was shut down.
[[nodiscard]] int pollConnection(WSAPOLLFD* sockets, ULONG count, int milliseconds);
#endif
