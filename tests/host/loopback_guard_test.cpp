#include "server/loopback_guard.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <thread>
#include <utility>
#include <vector>

#include "server/loopback_address.h"

namespace {
/// A server of another program, at one loopback address.
class OtherServer {
public:
    OtherServer(const char* address, int port) : port_(port) {
        server_.set_keep_alive_timeout(1);
        server_.new_task_queue = [] { return new httplib::ThreadPool(2); };
        server_.Get("/", [](const httplib::Request&, httplib::Response& response) {
            response.set_content("other", "text/plain");
        });
        if (!server_.bind_to_port(address, port)) {
            port_ = -1;
            return;
        }
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

/// At a port of a range that systems give to no client: of those, other tests leave many behind at either address.
std::unique_ptr<OtherServer> serverAt(const char* address) {
    std::random_device random;
    std::uniform_int_distribution ports(20'000, 32'000);
    auto server = std::make_unique<OtherServer>(address, ports(random));
    for (int tries = 1; server->port() < 0 && tries < 100; ++tries)
        server = std::make_unique<OtherServer>(address, ports(random));
    return server;
}

bool answers(const char* address, int port) { return static_cast<bool>(httplib::Client(address, port).Get("/")); }

class LoopbackGuardOf : public testing::TestWithParam<std::pair<const char*, const char*>> {
protected:
    const char* own = GetParam().first;
    const char* other = GetParam().second;
};
}  // namespace

TEST_P(LoopbackGuardOf, AServerIsKeptFromOthers) {
    const auto listening = serverAt(own);
    ASSERT_GT(listening->port(), 0);
    {
        const LoopbackGuard held(listening->port());
        EXPECT_FALSE(held.otherAddressIsTaken());
        EXPECT_EQ(OtherServer(other, listening->port()).port(), -1);
        EXPECT_FALSE(answers(other, listening->port()));
        EXPECT_TRUE(answers(own, listening->port()));
    }
    EXPECT_EQ(OtherServer(other, listening->port()).port(), listening->port()) << "free again once nobody holds it";
}

TEST_P(LoopbackGuardOf, AServerIsTakenWhereAnotherListens) {
    const auto listening = serverAt(own);
    const OtherServer intruder(other, listening->port());
    ASSERT_EQ(intruder.port(), listening->port());
    const LoopbackGuard held(listening->port());
    EXPECT_TRUE(held.otherAddressIsTaken());
}

/// None where the system has no IPv6, and with it no second address.
static std::vector<std::pair<const char*, const char*>> bothWays() {
    if (serverAt("::1")->port() < 0) return {};
    return {{"127.0.0.1", "::1"}, {"::1", "127.0.0.1"}};
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(LoopbackGuardOf);
INSTANTIATE_TEST_SUITE_P(BothWays, LoopbackGuardOf, testing::ValuesIn(bothWays()));

TEST(LoopbackGuard, OfTheOnlyServerIsNotTaken) {
    const auto listening = serverAt("127.0.0.1");
    EXPECT_FALSE(LoopbackGuard(listening->port()).otherAddressIsTaken());
}

TEST(LoopbackGuard, OfNoServerIsNotTaken) { EXPECT_FALSE(LoopbackGuard(-1).otherAddressIsTaken()); }
