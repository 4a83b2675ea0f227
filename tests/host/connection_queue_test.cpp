#include "server/connection_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {
/// A server with the library's queue, on a port of its own, and clients that say what they like.
class QueueOfTheServer : public testing::Test {
protected:
    void SetUp() override {
        server.Get("/", [](const httplib::Request&, httplib::Response& response) {
            response.set_content("here", "text/plain");
        });
        server.set_logger([](const httplib::Request&, const httplib::Response&) { ConnectionQueue::noteAnswer(); });
        port = server.bind_to_any_port("127.0.0.1");
        thread = std::thread([this] { server.listen_after_bind(); });
        server.wait_until_ready();
    }
    void TearDown() override { stop(); }

    void stop() {
        server.stop();
        if (thread.joinable()) thread.join();
    }

    httplib::Server server;
    std::thread thread;
    int port = -1;
};

/// A connection that has sent the beginning of a request and no more.
class HalfSentRequest {
public:
    explicit HalfSentRequest(int port) : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        isOpen_ = connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
        static const std::string begin = "GET / HTTP/1.1\r\nHost: localhost\r\nX-Slow: ";
        send(socket_, begin.data(), static_cast<int>(begin.size()), 0);
    }
    ~HalfSentRequest() { httplib::detail::close_socket(socket_); }
    HalfSentRequest(const HalfSentRequest&) = delete;
    HalfSentRequest& operator=(const HalfSentRequest&) = delete;

    [[nodiscard]] bool isOpen() const { return isOpen_; }
    /// False some time after the server has closed the connection.
    [[nodiscard]] bool sendOneMore() const { return send(socket_, "a", 1, 0) == 1; }
    /// Blocks until the server has closed the connection.
    void waitForEnd() const {
        char byte = 0;
        while (recv(socket_, &byte, 1, 0) > 0) continue;
    }

private:
    socket_t socket_;
    bool isOpen_ = false;
};
}  // namespace

TEST_F(QueueOfTheServer, AnswersWhileMoreConnectionsThanItTakesAreHalfSent) {
    std::vector<std::unique_ptr<HalfSentRequest>> slow;
    while (slow.size() < ConnectionQueue::threadLimit + 100) slow.push_back(std::make_unique<HalfSentRequest>(port));
    // Those that came first are given their grace.
    std::this_thread::sleep_for(ConnectionQueue::grace);
    const auto answer = httplib::Client("127.0.0.1", port).Get("/");
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "here");
    slow.front()->waitForEnd();  // it made room
}

TEST_F(QueueOfTheServer, EndsRequestsThatAreSentTooSlowly) {
    const HalfSentRequest slow(port);
    ASSERT_TRUE(slow.isOpen());
    // The library's own limit is between two bytes: without another, this one would stay for ever.
    const auto longest = std::chrono::steady_clock::now() + 4 * ConnectionQueue::patience;
    while (slow.sendOneMore() && std::chrono::steady_clock::now() < longest) std::this_thread::sleep_for(100ms);
    EXPECT_LT(std::chrono::steady_clock::now(), longest);
}

TEST_F(QueueOfTheServer, EndsWithoutWaitingForItsClients) {
    const HalfSentRequest slow(port);
    // Answered after the slow one has been taken.
    ASSERT_TRUE(httplib::Client("127.0.0.1", port).Get("/"));
    const auto begin = std::chrono::steady_clock::now();
    stop();
    // Without an end to its connections, the server waits for as long as they may take.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(CPPHTTPLIB_SERVER_READ_TIMEOUT_SECOND));
    slow.waitForEnd();
}

TEST_F(QueueOfTheServer, AnswersMoreAtOnceThanItHasThreads) {
    // None of them closes its connection.
    std::vector<std::unique_ptr<httplib::Client>> clients;
    for (std::size_t i = 0; i < 2 * ConnectionQueue::threadLimit; ++i) {
        clients.push_back(std::make_unique<httplib::Client>("127.0.0.1", port));
        clients.back()->set_keep_alive(true);
        ASSERT_TRUE(clients.back()->Get("/")) << i;
    }
}

TEST_F(QueueOfTheServer, AnswersEachOfManyShortConnections) {
    std::atomic<int> answered = 0;
    std::vector<std::thread> clients;
    for (int client = 0; client < 8; ++client) {
        clients.emplace_back([&] {
            for (int request = 0; request < 100; ++request) {
                if (httplib::Client("127.0.0.1", port).Get("/")) ++answered;
            }
        });
    }
    for (std::thread& client : clients) client.join();
    EXPECT_EQ(answered, 800);
}
