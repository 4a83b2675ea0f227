#include "app/window/page_revival.h"

#include <gtest/gtest.h>

#include "fake_page_window.h"

TEST(ThreeAMinute, AllowsTheFourthWhenTheFirstIsAMinuteAgo) {
    ThreeAMinute limit;
    const Clock::time_point start{};
    for (const int second : {0, 10, 20}) EXPECT_TRUE(limit.allows(start + std::chrono::seconds(second)));
    EXPECT_FALSE(limit.allows(start + std::chrono::seconds(59)));
    EXPECT_TRUE(limit.allows(start + std::chrono::seconds(60)));
    EXPECT_FALSE(limit.allows(start + std::chrono::seconds(69)));
}

TEST(PageRevival, LoadsTheStartPageAgainAndGivesUpWithASentence) {
    FakePageWindow window;
    PageRevival revival(window, "http://localhost:1234");
    bool gaveUp = false;
    for (int i = 0; i < 4; ++i) revival.revive(true, [&] { gaveUp = true; });
    EXPECT_EQ(window.addresses, std::vector<std::string>(3, "http://localhost:1234/?restored"));
    ASSERT_EQ(window.sentences.size(), 1U);
    EXPECT_FALSE(gaveUp) << "the user reads the sentence first";
    window.read();
    EXPECT_TRUE(gaveUp);
}

TEST(PageRevival, GivesUpAtOnceWhenTheWholeEngineIsGone) {
    FakePageWindow window;
    PageRevival revival(window, "http://localhost:1234");
    revival.revive(false, [] {});
    EXPECT_TRUE(window.addresses.empty());
    EXPECT_EQ(window.sentences.size(), 1U);
}

TEST(PageRevival, LoadsAPageAgainOfWhichNothingCame) {
    FakePageWindow window;
    PageRevival revival(window, "http://localhost:1234");
    revival.watch();
    window.pass(std::chrono::milliseconds(9999));
    EXPECT_TRUE(window.addresses.empty());
    window.pass(std::chrono::milliseconds(1));
    EXPECT_EQ(window.addresses, std::vector<std::string>{"http://localhost:1234"});
    window.pass(std::chrono::minutes(5));
    EXPECT_EQ(window.addresses.size(), 3U) << "not for ever";
    EXPECT_TRUE(window.sentences.empty());
}

TEST(PageRevival, LeavesAPageAloneThatCame) {
    FakePageWindow window;
    PageRevival revival(window, "http://localhost:1234");
    revival.watch();
    window.pageTitle = "Tessary";
    window.pass(std::chrono::minutes(5));
    EXPECT_TRUE(window.addresses.empty());
}

TEST(PageRevival, LoadsTheRestoredPageAgainOfWhichNothingCame) {
    FakePageWindow window;
    PageRevival revival(window, "http://localhost:1234");
    revival.revive(true, [] {});
    window.pass(std::chrono::seconds(10));
    EXPECT_EQ(window.addresses, std::vector<std::string>(2, "http://localhost:1234/?restored"));
}
