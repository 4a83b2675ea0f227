#include "server/connection_queue.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "server/connection_socket.h"
#include "server/worker_thread.h"

// Kept from the start: where later threads cannot be made, these answer.
static constexpr std::size_t reserve = 4;
// A thread beyond the reserve ends when nobody called it for this long.
static constexpr std::chrono::seconds idleTime{2};
// How long a connection stays open without a request.
static constexpr std::chrono::seconds keptTime{CPPHTTPLIB_KEEPALIVE_TIMEOUT_SECOND};
static constexpr std::chrono::seconds betweenLooks{1};

thread_local ConnectionQueue* ConnectionQueue::ownQueue = nullptr;
thread_local ConnectionQueue::Connection* ConnectionQueue::ownConnection = nullptr;

static bool hasWholeRequest(socket_t socket) { return peekAt(socket).find("\r\n\r\n") != std::string::npos; }

ConnectionQueue::ConnectionQueue() {
    ownQueue = this;
    const std::lock_guard guard(mutex_);
    while (workers_.size() < reserve && startWorker()) continue;
}

ConnectionQueue::~ConnectionQueue() {
    shutdown();
    ownQueue = nullptr;
}

socket_t ConnectionQueue::accept(socket_t listening) {
    const socket_t socket = acceptSocket(listening);
    if (ownQueue != nullptr) ownQueue->accepted_ = socket;
    return socket;
}

bool ConnectionQueue::enqueue(std::function<void()> serve) {
    const std::lock_guard guard(mutex_);
    const socket_t socket = std::exchange(accepted_, INVALID_SOCKET);
    if (Clock::now() - lookedAfter_ > betweenLooks) lookAfterConnections();
    if (connections_.size() >= connectionLimit) closeIdleFor(Clock::duration::zero());
    if (closed_ || workers_.empty() || connections_.size() >= connectionLimit) return false;
    const auto connection = connections_.try_emplace(socket).first;
    connection->second.serve = std::move(serve);
    watch(connection);
    callThread();
    return true;
}

void ConnectionQueue::shutdown() {
    std::unique_lock lock(mutex_);
    closed_ = true;
    endServedFor(Clock::duration::zero());
    ready_.wake();
    called_.notify_all();
    std::list<pthread_t> workers = std::exchange(workers_, {});
    workers.splice(workers.end(), finished_);
    lock.unlock();
    for (const pthread_t worker : workers) pthread_join(worker, nullptr);
    for (const auto& [socket, connection] : std::exchange(connections_, {})) closeSocket(socket);
}

void ConnectionQueue::on_idle() {
    const std::lock_guard guard(mutex_);
    lookAfterConnections();
}

std::size_t ConnectionQueue::requestNumber() { return ownConnection == nullptr ? 1 : ownConnection->requests; }

void ConnectionQueue::noteRequest() {
    if (ownConnection != nullptr) ownConnection->since = Clock::time_point::max();
}

void ConnectionQueue::noteAnswer() {
    if (ownConnection != nullptr) ownConnection->since = Clock::now();
}

bool ConnectionQueue::hasEnded() { return ownConnection != nullptr && ownConnection->state == State::ended; }

void ConnectionQueue::close(socket_t socket) {
    if (ownQueue != nullptr) {
        // Forgotten first: once it is closed, its number may be another's.
        const std::lock_guard guard(ownQueue->mutex_);
        ownConnection = nullptr;
        ownQueue->connections_.erase(socket);
    }
    shutdownSocket(socket);
    closeSocket(socket);
}

void* ConnectionQueue::runWorker(void* queue) {
    ownQueue = static_cast<ConnectionQueue*>(queue);
    ownQueue->work();
    return nullptr;
}

void ConnectionQueue::work() {
    std::unique_lock lock(mutex_);
    isCalled_ = false;
    while (const auto connection = takeRequest(lock)) serve(lock, *connection);
    // After the end of the queue, whoever ended it joins this thread.
    const auto self = std::find_if(workers_.begin(), workers_.end(),
                                   [](pthread_t worker) { return pthread_equal(worker, pthread_self()) != 0; });
    if (self != workers_.end()) finished_.splice(finished_.end(), workers_, self);
}

std::optional<ConnectionQueue::Connections::iterator> ConnectionQueue::takeRequest(std::unique_lock<std::mutex>& lock) {
    while (!closed_) {
        if (const auto next = nextWaiting()) {
            callThread();
            return next;
        }
        if (!isWatched_ && ready_.canWait()) {
            waitForRequests(lock);
        } else if (!waitForCall(lock)) {
            break;
        }
    }
    return std::nullopt;
}

std::optional<ConnectionQueue::Connections::iterator> ConnectionQueue::nextWaiting() {
    if (waiting_.empty()) return std::nullopt;
    auto next = waiting_.begin();
    // Who has sent all of a request does not wait behind those who take their time.
    if (isShort_) next = std::find_if(next, waiting_.end(), hasWholeRequest);
    if (next == waiting_.end()) next = waiting_.begin();
    const auto connection = connections_.find(*next);
    waiting_.erase(next);
    connection->second.state = State::served;
    connection->second.since = Clock::now();
    ++connection->second.requests;
    return connection;
}

void ConnectionQueue::waitForRequests(std::unique_lock<std::mutex>& lock) {
    isWatched_ = true;
    lock.unlock();
    const std::vector<socket_t>& ready = ready_.wait();
    lock.lock();
    isWatched_ = false;
    for (const socket_t socket : ready) {
        const auto found = connections_.find(socket);
        if (found == connections_.end() || found->second.state != State::idle) continue;
        found->second.state = State::waiting;
        waiting_.push_back(socket);
    }
}

bool ConnectionQueue::waitForCall(std::unique_lock<std::mutex>& lock) {
    ++idleWorkers_;
    while (!isCalled_ && !closed_) {
        // No clock wakes the reserve: a program that nobody asks anything stays idle.
        if (workers_.size() <= reserve) {
            called_.wait(lock);
        } else if (called_.wait_for(lock, idleTime) == std::cv_status::timeout && workers_.size() > reserve) {
            break;
        }
    }
    --idleWorkers_;
    return std::exchange(isCalled_, false);
}

void ConnectionQueue::serve(std::unique_lock<std::mutex>& lock, Connections::iterator connection) {
    // Closing the connection ends its own copy.
    const std::function<void()> serve = connection->second.serve;
    ownConnection = &connection->second;
    lock.unlock();
    serve();
    lock.lock();
    if (std::exchange(ownConnection, nullptr) != nullptr && !closed_) watch(connection);
}

void ConnectionQueue::watch(Connections::iterator connection) {
    auto& [socket, about] = *connection;
    about.state = State::idle;
    about.since = Clock::now();
    if (ready_.watch(socket)) return;
    about.state = State::waiting;
    waiting_.push_back(socket);
}

bool ConnectionQueue::startWorker() {
    const auto worker = startWorkerThread(runWorker, this);
    if (worker) workers_.push_back(*worker);
    return worker.has_value();
}

void ConnectionQueue::callThread() {
    const bool isWatched = isWatched_ || !ready_.canWait();
    if (isCalled_ || (waiting_.empty() && isWatched)) return;
    if (idleWorkers_ > 0) called_.notify_one();
    isCalled_ = idleWorkers_ > 0 || (workers_.size() < threadLimit && startWorker());
    isShort_ = !isCalled_;
    if (isShort_) endServedFor(grace);
}

void ConnectionQueue::lookAfterConnections() {
    lookedAfter_ = Clock::now();
    joinFinished();
    endServedFor(patience);
    closeIdleFor(keptTime);
    callThread();
}

void ConnectionQueue::joinFinished() {
    for (const pthread_t worker : std::exchange(finished_, {})) pthread_join(worker, nullptr);
}

void ConnectionQueue::endServedFor(Clock::duration age) {
    const Clock::time_point now = Clock::now();
    for (auto& [socket, connection] : connections_) {
        const bool hasTime = now - connection.since.load() < age && !closed_;
        if (connection.state != State::served || hasTime) continue;
        connection.state = State::ended;
        shutdownSocket(socket);
    }
}

void ConnectionQueue::closeIdleFor(Clock::duration age) {
    const Clock::time_point now = Clock::now();
    for (auto each = connections_.begin(); each != connections_.end();) {
        const auto& [socket, connection] = *each;
        const Clock::duration idle = now - connection.since.load();
        // One that has had no answer yet is given its time.
        const bool isOver = connection.state == State::idle && idle >= (connection.requests > 0 ? age : keptTime);
        if (!isOver || !peekAt(socket).empty()) {
            ++each;
            continue;
        }
        ready_.forget(socket);
        shutdownSocket(socket);
        closeSocket(socket);
        each = connections_.erase(each);
    }
}
