// The server's connections and the threads that answer them. The HTTP library is built to use this queue
// (cmake/httplib_library.cmake): its own ends the program when a thread cannot be made, keeps new connections waiting
// behind those that send slowly, and waits at the end for as long as a client likes.
#pragma once
#include <httplib.h>
#include <pthread.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <list>
#include <map>
#include <mutex>

/// Each connection has a thread. One whose request is not whole after `patience` is ended. When no thread is left for a
/// new one, because there are `threadLimit` of them or the system gives no more, others make room: those that have had
/// an answer and ask nothing now, and those that have had none after `grace`.
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

    /// Calls `serve` on a thread of the queue: it serves the connection that this thread accepted last. False when the
    /// connection is to be closed at once.
    bool enqueue(std::function<void()> serve) override;
    /// Ends all connections, and waits until their threads are gone.
    void shutdown() override;
    void on_idle() override;

    /// Takes the next connection to `listening`, waiting out failures that may pass, such as too many open files.
    /// INVALID_SOCKET once nothing can be accepted any more.
    [[nodiscard]] static socket_t accept(socket_t listening);
    /// The connection that the calling thread serves is about to get its answer: its time starts anew, or, when others
    /// wait for a thread, it ends with this answer.
    static void noteAnswer();
    /// The connection that the calling thread serves is not to be waited for any longer.
    [[nodiscard]] static bool hasEnded();
    /// Closes the connection that the calling thread served.
    static void close(socket_t socket);

private:
    using Clock = std::chrono::steady_clock;
    struct Connection {
        bool hasThread = false;
        Clock::time_point since{};  ///< its thread took it, or last answered it
        bool answered = false;
        bool ending = false;  ///< not read from any more
        bool ended = false;   ///< shut down
    };
    struct Job {
        socket_t socket;
        std::function<void()> serve;
    };

    static void* runWorker(void* queue);
    void work();
    /// Gives up after a while when there are more threads than the reserve.
    void awaitJob(std::unique_lock<std::mutex>& lock);
    /// False when the thread should end.
    bool takeJob(std::unique_lock<std::mutex>& lock, Job& job);
    bool startWorker();
    [[nodiscard]] bool hasThreadForOneMore();
    void joinFinished();
    void forget(socket_t socket);
    static void endAfterAnswer(socket_t socket, Connection& connection);
    static void end(socket_t socket, Connection& connection);
    void endOlderThan(Clock::duration age);
    void makeRoom();

    std::mutex mutex_;
    std::condition_variable wake_;
    std::list<Job> jobs_;
    std::map<socket_t, Connection> connections_;
    std::list<pthread_t> workers_;
    std::list<pthread_t> finished_;
    std::size_t idle_ = 0;
    bool closed_ = false;
    socket_t accepted_ = INVALID_SOCKET;
};
