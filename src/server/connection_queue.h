// The server's connections and the threads that answer them. The HTTP library is built to use this queue
// (cmake/httplib_library.cmake): its own gives each connection a thread for as long as it lasts, ends the program when
// a thread cannot be made, keeps new connections waiting behind those that send slowly, and waits at the end for as
// long as a client likes.
#pragma once
#include <httplib.h>
#include <pthread.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <optional>

#include "server/ready_connections.h"

/// A connection has a thread from the first byte of a request until its answer is sent. One whose request is not whole
/// after `patience` is ended. When no thread is left for a request, because there are `threadLimit` of them or the
/// system gives no more, those make room that have neither sent all nor read all after `grace`, and whole requests go
/// first.
class ConnectionQueue final : public httplib::TaskQueue {
public:
    static constexpr std::size_t threadLimit = 256;
    /// Beyond as many, connections are closed at once: the rest of a thousand files are for the page and its documents.
    static constexpr std::size_t connectionLimit = 768;
    static constexpr std::chrono::milliseconds patience{5000};
    static constexpr std::chrono::milliseconds grace{250};

    /// Starts the threads that are kept in reserve. To be made, fed and shut down on the thread that accepts.
    ConnectionQueue();
    ConnectionQueue(const ConnectionQueue&) = delete;
    ConnectionQueue& operator=(const ConnectionQueue&) = delete;
    ~ConnectionQueue() override;

    /// Calls `serve` on a thread of the queue for each request on the connection that this thread accepted last, until
    /// it is closed. False when the connection is to be closed at once.
    bool enqueue(std::function<void()> serve) override;
    /// Ends all connections, and waits until their threads are gone.
    void shutdown() override;
    void on_idle() override;

    /// Takes the next connection to `listening`, waiting out failures that may pass, such as too many open files.
    /// INVALID_SOCKET once nothing can be accepted any more.
    [[nodiscard]] static socket_t accept(socket_t listening);
    /// How many requests the connection that the calling thread serves has sent, with this one.
    [[nodiscard]] static std::size_t requestNumber();
    /// All of the request is there that the calling thread serves: its time stands still while the answer is made.
    static void noteRequest();
    /// The connection that the calling thread serves is about to get its answer: its time starts anew.
    static void noteAnswer();
    /// The connection that the calling thread serves is not to be waited for any longer.
    [[nodiscard]] static bool hasEnded();
    /// Closes the connection that the calling thread serves.
    static void close(socket_t socket);

private:
    using Clock = std::chrono::steady_clock;
    enum class State {
        idle,     ///< watched for a request
        waiting,  ///< for a thread
        served,   ///< by a thread
        ended,    ///< shut down while it was served
    };
    struct Connection {
        std::function<void()> serve;
        std::atomic<State> state = State::idle;
        std::atomic<Clock::time_point> since = Clock::now();  ///< see `noteRequest` and `noteAnswer`
        std::size_t requests = 0;
    };
    using Connections = std::map<socket_t, Connection>;

    static void* runWorker(void* queue);
    void work();
    /// The connection to serve next; nothing when the thread should end.
    std::optional<Connections::iterator> takeRequest(std::unique_lock<std::mutex>& lock);
    std::optional<Connections::iterator> nextWaiting();
    void waitForRequests(std::unique_lock<std::mutex>& lock);
    /// False when nobody called, and the thread is not needed.
    bool waitForCall(std::unique_lock<std::mutex>& lock);
    void serve(std::unique_lock<std::mutex>& lock, Connections::iterator connection);
    void watch(Connections::iterator connection);
    bool startWorker();
    /// Makes sure that a thread is there for what waits, or for what comes; where there is none, others make room.
    void callThread();
    void lookAfterConnections();
    void joinFinished();
    void endServedFor(Clock::duration age);
    void closeIdleFor(Clock::duration age);

    // Of the calling thread: what it accepts or serves for, and what it serves.
    static thread_local ConnectionQueue* ownQueue;
    static thread_local Connection* ownConnection;

    std::mutex mutex_;
    std::condition_variable called_;
    Connections connections_;
    std::deque<socket_t> waiting_;
    ReadyConnections ready_;
    std::list<pthread_t> workers_;
    std::list<pthread_t> finished_;
    std::size_t idleWorkers_ = 0;
    bool isCalled_ = false;   ///< one of them, or a new one, is on its way
    bool isWatched_ = false;  ///< one waits for requests
    bool isShort_ = false;    ///< of threads
    bool closed_ = false;
    Clock::time_point lookedAfter_ = Clock::now();
    socket_t accepted_ = INVALID_SOCKET;
};
