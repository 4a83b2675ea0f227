#include "server/connection_queue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "app/process_limits.h"
#include "server/request_server.h"

using namespace std::chrono_literals;

namespace {
/// A server with the library's queue, on a port of its own, and clients that say what they like.
class QueueOfTheServer : public testing::Test {
protected:
    static void SetUpTestSuite() { prepareProcessLimits(); }
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

    RequestServer server;
    std::thread thread;
    int port = -1;
};

constexpr const char* beginOfRequest = "GET / HTTP/1.1\r\nHost: localhost\r\nX-Slow: ";
constexpr const char* wholeRequest = "GET / HTTP/1.1\r\nHost: localhost\r\n\r\n";

/// A connection whose bytes are the test's own.
class Connection {
public:
    explicit Connection(int port, const std::string& sent = "") : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        isOpen_ = connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 && sends(sent);
    }
    ~Connection() { httplib::detail::close_socket(socket_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    [[nodiscard]] bool isOpen() const { return isOpen_; }
    /// False some time after the server has closed the connection.
    [[nodiscard]] bool sends(const std::string& bytes) const {
        return bytes.empty() || send(socket_, bytes.data(), static_cast<int>(bytes.size()), 0) > 0;
    }
    /// Blocks until there is an answer, or none.
    [[nodiscard]] bool isAnswered() const {
        std::string answer;
        for (char byte = 0; !answer.ends_with("\r\n\r\nhere") && recv(socket_, &byte, 1, 0) == 1;) answer += byte;
        return answer.starts_with("HTTP/1.1 200 ") && answer.ends_with("here");
    }
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
    std::vector<std::unique_ptr<Connection>> slow;
    while (slow.size() < ConnectionQueue::threadLimit + 100)
        slow.push_back(std::make_unique<Connection>(port, beginOfRequest));
    // Those that came first are given their grace.
    std::this_thread::sleep_for(ConnectionQueue::grace);
    const auto answer = httplib::Client("127.0.0.1", port).Get("/");
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "here");
    slow.front()->waitForEnd();  // it made room
}

TEST_F(QueueOfTheServer, WaitsForItsOwnWorkWhereOthersMakeRoom) {
    std::promise<void> begun;
    std::promise<void> may;
    server.Get("/work", [&](const httplib::Request&, httplib::Response& response) {
        begun.set_value();
        may.get_future().wait();
        response.set_content("here", "text/plain");
    });
    const Connection asking(port, "GET /work HTTP/1.1\r\nHost: localhost\r\n\r\n");
    begun.get_future().wait();
    std::vector<std::unique_ptr<Connection>> slow;
    while (slow.size() < ConnectionQueue::threadLimit + 100)
        slow.push_back(std::make_unique<Connection>(port, beginOfRequest));
    slow.front()->waitForEnd();  // it came later, and made room
    may.set_value();
    EXPECT_TRUE(asking.isAnswered());
}

/// Sends bytes for longer than the server's patience; whether it closed the connection meanwhile.
static bool isEndedWhileItDrips(const Connection& slow) {
    // The library's own limit is between two bytes: without another, this one would stay for ever.
    const auto longest = std::chrono::steady_clock::now() + 4 * ConnectionQueue::patience;
    while (slow.sends("a") && std::chrono::steady_clock::now() < longest) std::this_thread::sleep_for(100ms);
    return std::chrono::steady_clock::now() < longest;
}

TEST_F(QueueOfTheServer, EndsRequestsThatAreSentTooSlowly) {
    const Connection slow(port, beginOfRequest);
    ASSERT_TRUE(slow.isOpen());
    EXPECT_TRUE(isEndedWhileItDrips(slow));
}

TEST_F(QueueOfTheServer, EndsBodiesThatAreSentTooSlowly) {
    const Connection slow(port, "GET / HTTP/1.1\r\nHost: localhost\r\nContent-Length: 1000\r\n\r\n");
    ASSERT_TRUE(slow.isOpen());
    EXPECT_TRUE(isEndedWhileItDrips(slow));
}

TEST_F(QueueOfTheServer, EndsWithoutWaitingForItsClients) {
    const Connection slow(port, beginOfRequest);
    // Answered after the slow one has been taken.
    ASSERT_TRUE(httplib::Client("127.0.0.1", port).Get("/"));
    const auto begin = std::chrono::steady_clock::now();
    stop();
    // Without an end to its connections, the server waits for as long as they may take.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(CPPHTTPLIB_SERVER_READ_TIMEOUT_SECOND));
    slow.waitForEnd();
}

TEST_F(QueueOfTheServer, KeepsMoreConnectionsThanItHasThreads) {
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::seconds keptTime{CPPHTTPLIB_KEEPALIVE_TIMEOUT_SECOND};
    std::vector<std::unique_ptr<Connection>> kept;
    std::vector<Clock::time_point> answered;
    while (kept.size() <= ConnectionQueue::threadLimit) {
        answered.push_back(Clock::now());
        kept.push_back(std::make_unique<Connection>(port, wholeRequest));
        ASSERT_TRUE(kept.back()->isAnswered()) << kept.size();
    }
    for (std::size_t i = 0; i < kept.size(); ++i) {
        const bool isKept = kept[i]->sends(wholeRequest) && kept[i]->isAnswered();
        // On a busy machine all of this may take longer than a connection is kept that asks nothing.
        EXPECT_TRUE(isKept || Clock::now() - answered[i] > keptTime) << i;
    }
}

TEST_F(QueueOfTheServer, MakesRoomForNewConnectionsAmongThoseThatAskNothing) {
    std::vector<std::unique_ptr<Connection>> kept;
    while (kept.size() < ConnectionQueue::connectionLimit) {
        kept.push_back(std::make_unique<Connection>(port, wholeRequest));
        ASSERT_TRUE(kept.back()->isAnswered()) << kept.size();
    }
    EXPECT_TRUE(httplib::Client("127.0.0.1", port).Get("/"));
}

TEST_F(QueueOfTheServer, ClosesConnectionsThatAskNothing) {
    const Connection silent(port);
    const Connection answered(port, wholeRequest);
    ASSERT_TRUE(answered.isAnswered());
    silent.waitForEnd();
    answered.waitForEnd();
}

TEST_F(QueueOfTheServer, ReadsARequestThatComesInPieces) {
    const Connection slow(port);
    for (const char* byte = wholeRequest; *byte != 0; ++byte) {
        ASSERT_TRUE(slow.sends({*byte}));
        std::this_thread::yield();
    }
    EXPECT_TRUE(slow.isAnswered());
}

TEST_F(QueueOfTheServer, ClosesAConnectionWithItsHundredthAnswer) {
    httplib::Client client("127.0.0.1", port);
    client.set_keep_alive(true);
    for (int request = 1; request <= CPPHTTPLIB_KEEPALIVE_MAX_COUNT + 1; ++request) {
        const auto answer = client.Get("/");
        ASSERT_TRUE(answer) << request;
        EXPECT_EQ(answer->has_header("Keep-Alive"), request != CPPHTTPLIB_KEEPALIVE_MAX_COUNT) << request;
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
