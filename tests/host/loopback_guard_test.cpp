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
        server_.new_task_queue = [] { return new httplib::ThreadPool(2); };
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

class LoopbackGuardOf : public testing::TestWithParam<std::pair<const char*, const char*>> {
protected:
    const char* own = GetParam().first;
    const char* other = GetParam().second;
};
}  // namespace

TEST_P(LoopbackGuardOf, AServerIsKeptFromOthers) {
    const OtherServer listening(own);
    ASSERT_GT(listening.port(), 0);
    {
        const LoopbackGuard held(listening.port());
        EXPECT_FALSE(held.otherAddressIsTaken());
        EXPECT_EQ(OtherServer(other, listening.port()).port(), -1);
        EXPECT_FALSE(answers(other, listening.port()));
        EXPECT_TRUE(answers(own, listening.port()));
    }
    EXPECT_EQ(OtherServer(other, listening.port()).port(), listening.port()) << "free again once nobody holds it";
}

TEST_P(LoopbackGuardOf, AServerIsTakenWhereAnotherListens) {
    const OtherServer listening(own);
    const OtherServer intruder(other, listening.port());
    ASSERT_EQ(intruder.port(), listening.port());
    const LoopbackGuard held(listening.port());
    EXPECT_TRUE(held.otherAddressIsTaken());
}

/// None where the system has no IPv6, and with it no second address.
static std::vector<std::pair<const char*, const char*>> bothWays() {
    if (OtherServer("::1").port() < 0) return {};
    return {{"127.0.0.1", "::1"}, {"::1", "127.0.0.1"}};
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(LoopbackGuardOf);
INSTANTIATE_TEST_SUITE_P(BothWays, LoopbackGuardOf, testing::ValuesIn(bothWays()));

TEST(LoopbackGuard, OfTheOnlyServerIsNotTaken) {
    const OtherServer listening("127.0.0.1");
    EXPECT_FALSE(LoopbackGuard(listening.port()).otherAddressIsTaken());
}

TEST(LoopbackGuard, OfNoServerIsNotTaken) { EXPECT_FALSE(LoopbackGuard(-1).otherAddressIsTaken()); }
