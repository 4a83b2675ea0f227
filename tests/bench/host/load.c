/* Usage:

   load PORT PATH HEADERS CONNECTIONS MILLISECONDS
     kept connections, each asking again as soon as it is answered

   load PORT PATH HEADERS CONNECTIONS 0 BURSTS
     bursts of new connections, each asking once, at the same moment

   Prints one line: the number of requests, the seconds they took, their latencies in milliseconds (the median, the 99th
   percentile, the longest), how many took 100 ms or longer, the bytes of one answer's body, and the milliseconds of
   processor time that all of it took here. A latency is counted from before the connection is made, where a new one is
   needed. */
#define _GNU_SOURCE
#include <errno.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/tcp.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <time.h>
#include <unistd.h>

enum { mostLatencies = 4000000, room = 1 << 16, slow = 100 };

typedef struct {
    int socket; /* -1 while there is none */
    double asked;
    char head[4096];
    size_t headSize;
    long missing; /* of the body; -1 while the head is not whole */
    int closes;
} Connection;

static struct sockaddr_storage server;
static socklen_t serverSize;
static char request[16384];
static float latencies[mostLatencies];
static int count = 0;
static long bytes = 0;
static int queue;

static double millisecondsOf(clockid_t clock) {
    struct timespec now;
    clock_gettime(clock, &now);
    return (double)now.tv_sec * 1e3 + (double)now.tv_nsec / 1e6;
}

static double milliseconds(void) { return millisecondsOf(CLOCK_MONOTONIC); }

static void giveUp(const char* reason) {
    fprintf(stderr, "load: %s\n", reason);
    exit(1);
}

static void drop(Connection* connection) {
    if (connection->socket >= 0) close(connection->socket);
    connection->socket = -1;
}

static void sendRequest(Connection* connection) {
    connection->headSize = 0;
    connection->missing = -1;
    if (connection->socket < 0) {
        const int yes = 1;
        connection->socket = socket(server.ss_family, SOCK_STREAM, 0);
        if (connect(connection->socket, (struct sockaddr*)&server, serverSize) != 0) giveUp("no connection");
        setsockopt(connection->socket, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
        fcntl(connection->socket, F_SETFL, O_NONBLOCK);
        struct epoll_event event = {.events = EPOLLIN, .data.ptr = connection};
        epoll_ctl(queue, EPOLL_CTL_ADD, connection->socket, &event);
    }
    const size_t size = strlen(request);
    send(connection->socket, request, size, MSG_NOSIGNAL); /* to a closed connection: seen when its answer is read */
}

static void ask(Connection* connection) {
    connection->asked = milliseconds();
    sendRequest(connection);
}

/* Finds out which of the addresses of "localhost" the server has. */
static void findServer(const char* port) {
    struct addrinfo wanted = {.ai_socktype = SOCK_STREAM}, *found;
    if (getaddrinfo("localhost", port, &wanted, &found) != 0) giveUp("no localhost");
    for (struct addrinfo* each = found; each != NULL; each = each->ai_next) {
        const int trial = socket(each->ai_family, SOCK_STREAM, 0);
        if (serverSize == 0 && connect(trial, each->ai_addr, each->ai_addrlen) == 0) {
            memcpy(&server, each->ai_addr, serverSize = each->ai_addrlen);
        }
        close(trial);
    }
    freeaddrinfo(found);
    if (serverSize == 0) giveUp("no server");
}

static const char* header(const Connection* connection, const char* name) {
    const char* found = strcasestr(connection->head, name);
    return found == NULL ? NULL : found + strlen(name);
}

/* Takes what belongs to the head, and gives how much that was. */
static size_t takeHead(Connection* connection, const char* piece, size_t size) {
    const size_t before = connection->headSize;
    if (before + size >= sizeof connection->head) size = sizeof connection->head - before - 1;
    memcpy(connection->head + before, piece, size);
    connection->head[before + size] = '\0';
    char* end = strstr(connection->head, "\r\n\r\n");
    connection->headSize = end == NULL ? before + size : (size_t)(end + 4 - connection->head);
    if (end == NULL) return size;
    end[2] = '\0';
    const char* length = header(connection, "\r\ncontent-length: ");
    if (strncmp(connection->head, "HTTP/1.1 200", 12) != 0 || length == NULL) giveUp(connection->head);
    const char* after = header(connection, "\r\nconnection: ");
    connection->closes = after != NULL && strncasecmp(after, "close", 5) == 0;
    bytes = connection->missing = atol(length);
    return connection->headSize - before;
}

/* Whether the answer is whole now. */
static int take(Connection* connection) {
    static char piece[room];
    const ssize_t got = recv(connection->socket, piece, sizeof piece, 0);
    if (got < 0 && (errno == EAGAIN || errno == EINTR)) return 0;
    if (got <= 0 && connection->headSize == 0) {
        /* A server may close a kept connection at any time: the request has to be sent once more. */
        drop(connection);
        sendRequest(connection);
        return 0;
    }
    if (got <= 0) giveUp("a connection ended before its answer did");
    size_t used = connection->missing < 0 ? takeHead(connection, piece, (size_t)got) : 0;
    if (connection->missing < 0) return 0;
    connection->missing -= (long)((size_t)got - used);
    if (connection->missing > 0) return 0;
    if (count < mostLatencies) latencies[count++] = (float)(milliseconds() - connection->asked);
    return 1;
}

/* Waits until `open` answers have come; each is followed by another request before `end`. */
static void serve(int open, double end) {
    struct epoll_event events[256];
    while (open > 0) {
        const int ready = epoll_wait(queue, events, 256, 10000);
        if (ready == 0) giveUp("no answer in ten seconds");
        for (int i = 0; i < ready; ++i) {
            Connection* connection = events[i].data.ptr;
            if (!take(connection)) continue;
            const int isLast = milliseconds() >= end;
            if (connection->closes || isLast) drop(connection);
            if (isLast) --open;
            else ask(connection);
        }
    }
}

static int byLength(const void* a, const void* b) {
    const float difference = *(const float*)a - *(const float*)b;
    return (difference > 0) - (difference < 0);
}

int main(int argc, char** argv) {
    if (argc < 6) return 2;
    findServer(argv[1]);
    snprintf(request, sizeof request, "GET %s HTTP/1.1\r\nHost: localhost\r\n%s\r\n", argv[2], argv[3]);
    const int connections = atoi(argv[4]), bursts = argc > 6 ? atoi(argv[6]) : 1;
    Connection* all = calloc((size_t)connections, sizeof *all);
    for (int i = 0; i < connections; ++i) all[i].socket = -1;
    queue = epoll_create1(0);
    const double begin = milliseconds(), end = begin + atof(argv[5]);
    for (int burst = 0; burst < bursts; ++burst) {
        for (int i = 0; i < connections; ++i) ask(&all[i]);
        serve(connections, end);
        if (bursts > 1) usleep(100000);
    }
    const double seconds = (milliseconds() - begin) / 1e3, used = millisecondsOf(CLOCK_PROCESS_CPUTIME_ID);
    qsort(latencies, (size_t)count, sizeof *latencies, byLength);
    int late = 0;
    for (int i = 0; i < count; ++i) late += latencies[i] >= slow;
    printf("%d %.3f %.3f %.3f %.3f %d %ld %.3f\n", count, seconds, latencies[count / 2], latencies[count * 99 / 100],
           latencies[count - 1], late, bytes, used);
    return 0;
}
