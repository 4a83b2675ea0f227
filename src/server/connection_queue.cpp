#include "server/connection_queue.h"

#include <algorithm>
#include <string>
#include <utility>

#include "server/connection_socket.h"
#include "server/worker_thread.h"

// Kept from the start: where later threads cannot be made, these answer.
static constexpr std::size_t reserve = 4;
// A thread beyond the reserve ends when nothing came for this long.
static constexpr std::chrono::seconds idleTime{2};

// The queue that this thread accepts or serves for, and the connection that it serves.
static thread_local ConnectionQueue* ownQueue = nullptr;
static thread_local socket_t ownSocket = INVALID_SOCKET;

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
    joinFinished();
    if (!hasThreadForOneMore()) makeRoom();
    if (closed_ || workers_.empty() || connections_.size() >= connectionLimit) return false;
    connections_[socket] = {};
    jobs_.push_back({socket, std::move(serve)});
    wake_.notify_one();
    return true;
}

void ConnectionQueue::shutdown() {
    std::unique_lock lock(mutex_);
    closed_ = true;
    for (auto& [socket, connection] : connections_) end(socket, connection);
    wake_.notify_all();
    std::list<pthread_t> workers = std::exchange(workers_, {});
    workers.splice(workers.end(), finished_);
    lock.unlock();
    for (const pthread_t worker : workers) pthread_join(worker, nullptr);
}

void ConnectionQueue::on_idle() {
    const std::lock_guard guard(mutex_);
    joinFinished();
    endOlderThan(patience);
    if (!jobs_.empty()) makeRoom();
}

void ConnectionQueue::noteAnswer() {
    if (ownQueue == nullptr) return;
    const std::lock_guard guard(ownQueue->mutex_);
    const auto found = ownQueue->connections_.find(ownSocket);
    if (found == ownQueue->connections_.end()) return;
    found->second.since = Clock::now();
    found->second.answered = true;
    if (!ownQueue->jobs_.empty()) endAfterAnswer(ownSocket, found->second);
}

bool ConnectionQueue::hasEnded() {
    if (ownQueue == nullptr) return false;
    const std::lock_guard guard(ownQueue->mutex_);
    const auto found = ownQueue->connections_.find(ownSocket);
    return found != ownQueue->connections_.end() && found->second.ending;
}

void ConnectionQueue::close(socket_t socket) {
    // Forgotten first: once it is closed, its number may be another's.
    if (ownQueue != nullptr) ownQueue->forget(socket);
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
    Job job;
    while (takeJob(lock, job)) {
        lock.unlock();
        ownSocket = job.socket;
        job.serve();
        job = {};
        lock.lock();
    }
    // After the end of the queue, whoever ended it joins this thread.
    const auto self = std::find_if(workers_.begin(), workers_.end(),
                                   [](pthread_t worker) { return pthread_equal(worker, pthread_self()) != 0; });
    if (self != workers_.end()) finished_.splice(finished_.end(), workers_, self);
}

void ConnectionQueue::awaitJob(std::unique_lock<std::mutex>& lock) {
    const auto isWanted = [this] { return !jobs_.empty() || closed_; };
    while (workers_.size() > reserve) {
        if (wake_.wait_for(lock, idleTime, isWanted) || workers_.size() > reserve) return;
    }
    // No clock wakes the reserve: a program that nobody asks anything stays idle.
    wake_.wait(lock, isWanted);
}

bool ConnectionQueue::takeJob(std::unique_lock<std::mutex>& lock, Job& job) {
    ++idle_;
    awaitJob(lock);
    --idle_;
    if (jobs_.empty()) return false;
    // Who has sent all of a request does not wait behind those who take their time.
    auto next = std::find_if(jobs_.begin(), jobs_.end(), [](const Job& each) { return hasWholeRequest(each.socket); });
    if (next == jobs_.end()) next = jobs_.begin();
    job = std::move(*next);
    jobs_.erase(next);
    Connection& connection = connections_[job.socket];
    connection.hasThread = true;
    connection.since = Clock::now();
    return true;
}

bool ConnectionQueue::startWorker() {
    const auto worker = startWorkerThread(runWorker, this);
    if (worker) workers_.push_back(*worker);
    return worker.has_value();
}

bool ConnectionQueue::hasThreadForOneMore() {
    return jobs_.size() < idle_ || (workers_.size() < threadLimit && startWorker());
}

void ConnectionQueue::joinFinished() {
    for (const pthread_t worker : std::exchange(finished_, {})) pthread_join(worker, nullptr);
}

void ConnectionQueue::forget(socket_t socket) {
    const std::lock_guard guard(mutex_);
    connections_.erase(socket);
}

void ConnectionQueue::endAfterAnswer(socket_t socket, Connection& connection) {
    if (!connection.ending) stopReading(socket);
    connection.ending = true;
}

void ConnectionQueue::end(socket_t socket, Connection& connection) {
    if (!connection.ended) shutdownSocket(socket);
    connection.ending = connection.ended = true;
}

void ConnectionQueue::endOlderThan(Clock::duration age) {
    const Clock::time_point now = Clock::now();
    for (auto& [socket, connection] : connections_) {
        if (connection.hasThread && now - connection.since > age) end(socket, connection);
    }
}

void ConnectionQueue::makeRoom() {
    for (auto& [socket, connection] : connections_) {
        if (connection.answered) endAfterAnswer(socket, connection);
    }
    endOlderThan(grace);
}
