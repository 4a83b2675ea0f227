#include "server/loopback_guard.h"

#include <gtest/gtest.h>

#include <thread>
#include <utility>
#include <vector>

#include "server/loopback_address.h"

namespace {
/// A server of another program, at one loopback address.
class OtherServer {
public:
    explicit OtherServer(const char* address, int port = 0) {
        server_.set_keep_alive_timeout(1);
        server_.Get("/", [](const httplib::Request&, httplib::Response& response) {
            response.set_content("other", "text/plain");
        });
        port_ = port == 0 ? server_.bind_to_any_port(address) : server_.bind_to_port(address, port) ? port : -1;
        if (port_ < 0) return;
        thread_ = std::thread([this] { server_.listen_after_bind(); });
        server_.wait_until_ready();
    }
    ~OtherServer() {
        server_.stop();
        if (thread_.joinable()) thread_.join();
    }
    OtherServer(const OtherServer&) = delete;
    OtherServer& operator=(const OtherServer&) = delete;

    [[nodiscard]] int port() const { return port_; }

private:
    httplib::Server server_;
    std::thread thread_;
    int port_;
};

bool answers(const char* address, int port) { return static_cast<bool>(httplib::Client(address, port).Get("/")); }

class TwinAddressOf : public testing::TestWithParam<std::pair<const char*, const char*>> {
protected:
    const char* own = GetParam().first;
    const char* twin = GetParam().second;
};
}  // namespace

TEST_P(TwinAddressOf, AServerIsKeptFromOthers) {
    const OtherServer server(own);
    ASSERT_GT(server.port(), 0);
    {
        const TwinAddress held(server.port());
        EXPECT_FALSE(held.isTaken());
        EXPECT_EQ(OtherServer(twin, server.port()).port(), -1);
        EXPECT_FALSE(answers(twin, server.port()));
        EXPECT_TRUE(answers(own, server.port()));
    }
    EXPECT_EQ(OtherServer(twin, server.port()).port(), server.port()) << "free again once nobody holds it";
}

TEST_P(TwinAddressOf, AServerIsTakenWhereAnotherListens) {
    const OtherServer server(own);
    const OtherServer other(twin, server.port());
    ASSERT_EQ(other.port(), server.port());
    const TwinAddress held(server.port());
    EXPECT_TRUE(held.isTaken());
}

/// None where the system has no IPv6, and with it no twin.
static std::vector<std::pair<const char*, const char*>> bothWays() {
    if (OtherServer("::1").port() < 0) return {};
    return {{"127.0.0.1", "::1"}, {"::1", "127.0.0.1"}};
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(TwinAddressOf);
INSTANTIATE_TEST_SUITE_P(BothWays, TwinAddressOf, testing::ValuesIn(bothWays()));

TEST(TwinAddress, OfTheOnlyServerIsNotTaken) {
    const OtherServer server("127.0.0.1");
    EXPECT_FALSE(TwinAddress(server.port()).isTaken());
}

TEST(TwinAddress, OfNoServerIsNotTaken) { EXPECT_FALSE(TwinAddress(-1).isTaken()); }
