#include "server/local_server.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <list>
#include <regex>
#include <string>

#include "captured_output.h"

/// The one server of the process, running for the whole suite. Its log is kept.
class LocalServer : public testing::Test {
protected:
    static void SetUpTestSuite() {
        output = new CapturedOutput;
        setupServer("ignored");
        startServer();
        server.wait_until_ready();
    }
    static void TearDownTestSuite() {
        stopServer();
        stopServer();
        EXPECT_FALSE(httplib::Client("localhost", serverPort).Get("/")) << "the port is free again";
        delete output;
    }
    /// What is logged by the time that `text` has come to stand at the end of it: the line of a request is written
    /// after its answer.
    static std::string logEndingIn(const std::string& text) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!output->text().ends_with(text) && std::chrono::steady_clock::now() < deadline)
            std::this_thread::yield();
        return output->text();
    }

    static inline CapturedOutput* output = nullptr;
    // The limit that the library is built with is the server's, for what clients send.
    void SetUp() override { client.set_payload_max_length(1 << 24); }

    httplib::Client client{"localhost", serverPort};
};

TEST_F(LocalServer, ReportsItsPort) {
    EXPECT_GT(serverPort, 0);
    EXPECT_EQ(getServerUrl(), "http://localhost:" + std::to_string(serverPort));
    EXPECT_TRUE(
        output->text().starts_with("[Server] Release mode: serving embedded static files\n[Server] Bound to port " +
                                   std::to_string(serverPort) + "\n"));
}

TEST_F(LocalServer, NamesTheDevelopmentServerInDevelopment) {
    devMode = true;
    EXPECT_EQ(getServerUrl(), "http://localhost:5173");
    devMode = false;
}

TEST_F(LocalServer, AnswersThePageWhateverTheQuery) {
    const auto plain = client.Get("/");
    const auto query = client.Get("/index.html?x=1");
    ASSERT_TRUE(plain && query);
    EXPECT_EQ(plain->status, 200);
    EXPECT_EQ(plain->body, query->body);
    EXPECT_EQ(plain->get_header_value("Content-Type"), "text/html");
}

TEST_F(LocalServer, LogsARequestWithoutALineBreak) {
    ASSERT_TRUE(client.Get("/favicon.svg?again"));
    const std::string line = "[HTTP] GET /favicon.svg -> 200";
    EXPECT_TRUE(logEndingIn(line).ends_with(line));
}

TEST_F(LocalServer, LogsAnErrorBesideItsRequest) {
    const auto answer = client.Get("/settings");
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 404);
    EXPECT_EQ(answer->body, "Not Found");
    EXPECT_EQ(answer->get_header_value("Content-Type"), "text/plain");
    const std::string line = "[HTTP-ERR] GET /settings -> 404[HTTP] GET /settings -> 404";
    EXPECT_TRUE(logEndingIn(line).ends_with(line));
}

TEST_F(LocalServer, AnswersHeadWithoutABody) {
    const auto answer = client.Head("/favicon.ico");
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 200);
    EXPECT_EQ(answer->body, "");
    EXPECT_EQ(answer->get_header_value("Content-Type"), "image/x-icon");
}

TEST_F(LocalServer, HasNoRouteForOtherMethods) {
    for (const auto& answer :
         {client.Post("/"), client.Put("/"), client.Delete("/"), client.Options("/"), client.Patch("/")}) {
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->status, 404);
        EXPECT_EQ(answer->body, "Not Found");
    }
}

TEST_F(LocalServer, TakesNoLargeBody) {
    const auto small = client.Post("/", std::string(60'000, 'a'), "text/plain");
    ASSERT_TRUE(small);
    EXPECT_EQ(small->status, 404);
    EXPECT_EQ(small->body, "Not Found");
    const auto large = httplib::Client("localhost", serverPort).Post("/", std::string(100'000, 'a'), "text/plain");
    ASSERT_TRUE(large);
    EXPECT_EQ(large->status, 413);
}

TEST_F(LocalServer, SharesItsPortWithNobody) {
    // The library's other servers ask for a shared port.
    for (const char* address : {"127.0.0.1", "::1", "localhost"}) {
        if (!httplib::Client(address, serverPort).Get("/")) continue;
        EXPECT_FALSE(httplib::Server().bind_to_port(address, serverPort)) << address;
    }
}

TEST_F(LocalServer, NamesTheStatusOfOtherErrors) {
    const auto answer = client.Get("/" + std::string(8200, 'a'));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->status, 414);
    EXPECT_EQ(answer->body, "Error: 414");
}

TEST_F(LocalServer, AnswersPathsUpToTheLibrarysLimit) {
    for (std::size_t length = 1; length <= 8191; length = length < 100 ? length + 1 : length + 97) {
        const auto answer = client.Get("/" + std::string(length - 1, 'a'));
        ASSERT_TRUE(answer) << length;
        EXPECT_EQ(answer->status, length == 1 ? 200 : 404) << length;
    }
    const auto longest = client.Get("/" + std::string(8191, 'a'));
    ASSERT_TRUE(longest);
    EXPECT_EQ(longest->status, 404);
}

static std::string scriptPath() {
    const httplib::Client client("localhost", serverPort);
    const std::string page = httplib::Client("localhost", serverPort).Get("/")->body;
    std::smatch match;
    return std::regex_search(page, match, std::regex("src=\"([^\"]+\\.js)\"")) ? match[1].str() : "";
}

TEST_F(LocalServer, CompressesWithBrotliAndNothingElse) {
    const std::string path = scriptPath();
    ASSERT_NE(path, "");
    client.set_decompress(false);
    const auto brotli = client.Get(path, {{"Accept-Encoding", "gzip, deflate, br, zstd"}});
    const auto others = client.Get(path, {{"Accept-Encoding", "gzip, deflate, zstd"}});
    const auto plain = client.Get(path, {{"Accept-Encoding", "identity"}});
    ASSERT_TRUE(brotli && others && plain);
    EXPECT_EQ(brotli->get_header_value("Content-Encoding"), "br");
    EXPECT_LT(brotli->body.size(), plain->body.size() / 2);
    EXPECT_FALSE(others->has_header("Content-Encoding"));
    EXPECT_EQ(others->body, plain->body);
    EXPECT_FALSE(plain->has_header("Content-Encoding"));
}

TEST_F(LocalServer, AnswersManyAtOnce) {
    const std::string expected = client.Get("/favicon.png")->body;
    std::vector<std::thread> threads;
    std::atomic<int> same = 0;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            httplib::Client own("localhost", serverPort);
            for (int request = 0; request < 20; ++request) {
                const auto answer = own.Get("/favicon.png");
                if (answer && answer->body == expected) ++same;
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(same, 160);
}

TEST_F(LocalServer, AnswersAtOnceWhileOthersKeepTheirConnections) {
    // The library closes a connection that was idle for this long, which would make room by itself. So one request that
    // has no room waits that long, while many that have room may take longer together on a busy machine.
    static constexpr std::chrono::seconds patience{CPPHTTPLIB_KEEPALIVE_TIMEOUT_SECOND};
    std::chrono::steady_clock::duration longest{};
    const auto answers = [&longest](httplib::Client& asking, const std::string& path) {
        const auto begin = std::chrono::steady_clock::now();
        const bool isAnswered = static_cast<bool>(asking.Get(path));
        longest = std::max(longest, std::chrono::steady_clock::now() - begin);
        return isAnswered;
    };
    std::list<httplib::Client> others;
    for (int i = 0; i < 64; ++i) {
        others.emplace_back("localhost", serverPort).set_keep_alive(true);
        ASSERT_TRUE(answers(others.back(), "/favicon.svg")) << i;
    }
    EXPECT_TRUE(answers(client, "/"));
    EXPECT_LT(longest, patience);
}
