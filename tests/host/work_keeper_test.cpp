#include "app/window/work_keeper.h"

#include <gtest/gtest.h>

#include "app/window/patient_question.h"
#include "fake_page_window.h"
#include "temporary_folder.h"

namespace {
const std::string work = R"({"state":"changed","name":"a.words.tessary","text":"work"})";
const std::string none = R"({"state":"none"})";

struct WorkKeeperTest : testing::Test {
    TemporaryFolder outside;
    RescueFolder folder{outside.path() / "tessary"};
    FakePageWindow window;
    WorkKeeper keeper{window, folder};

    void keep(const PageResult& answer) {
        keeper.keepNow([] {});
        window.answer(answer);
    }
    [[nodiscard]] bool isKept() const { return !folder.list().empty(); }
};
}  // namespace

TEST_F(WorkKeeperTest, AsksAPageWithUnsavedWorkEveryTenSeconds) {
    window.pageTitle = "Tessary*";
    keeper.start();
    window.pass(std::chrono::milliseconds(9999));
    EXPECT_TRUE(window.scripts.empty());
    window.pass(std::chrono::milliseconds(1));
    ASSERT_EQ(window.scripts.size(), 1U);
    window.answer(work);
    EXPECT_TRUE(isKept());
    window.pass(std::chrono::seconds(10));
    EXPECT_EQ(window.scripts.size(), 2U);
    window.pass(std::chrono::seconds(12));
    EXPECT_EQ(window.scripts.size(), 3U) << "a page that hangs is asked again later";
}

TEST_F(WorkKeeperTest, LeavesAnIdlePageAlone) {
    window.pageTitle = "Tessary";
    keeper.start();
    window.pass(std::chrono::hours(1));
    EXPECT_TRUE(window.scripts.empty());
    window.pageTitle = "Tessary*";
    window.pass(std::chrono::seconds(10));
    EXPECT_EQ(window.scripts.size(), 1U) << "the mark comes with the first change, whoever made it";
    window.answer(work);
    EXPECT_TRUE(isKept());
    window.pageTitle = "Tessary";
    window.pass(std::chrono::seconds(10));
    window.answer(none);
    EXPECT_FALSE(isKept()) << "work that was saved is asked about once more";
    window.pass(std::chrono::hours(1));
    EXPECT_EQ(window.scripts.size(), 2U);
}

TEST_F(WorkKeeperTest, KeepsTheCopyUntilTheWorkIsSaved) {
    keep(work);
    keep(R"({"state":"same"})");
    EXPECT_TRUE(isKept());
    for (const PageResult& noAnswer : {PageResult("null"), PageResult("{}"), PageResult(std::nullopt)}) keep(noAnswer);
    EXPECT_TRUE(isKept());
    keep(none);
    EXPECT_FALSE(isKept());
}

TEST_F(WorkKeeperTest, AsksForAllOfTheWorkAfterACopyThatCouldNotBeWritten) {
    putBytes(folder.path().string(), "a file in the folder's place");
    keep(work);
    std::filesystem::remove(folder.path());
    keep(work);
    EXPECT_EQ(window.scripts[0].find("whole"), std::string::npos);
    EXPECT_NE(window.scripts[1].find("whole"), std::string::npos);
    EXPECT_TRUE(isKept());
}

TEST_F(WorkKeeperTest, KeepsWorkThatAHangingPageGivesLate) {
    window.pageTitle = "Tessary*";
    keeper.start();
    window.pass(std::chrono::seconds(10) + pagePatience);
    EXPECT_FALSE(isKept());
    window.answer(work);
    EXPECT_TRUE(isKept());
    window.pass(std::chrono::seconds(10));
    EXPECT_EQ(window.scripts.size(), 2U);
    window.answer(R"({"state":"same"})");
    EXPECT_TRUE(isKept());
}

TEST_F(WorkKeeperTest, CallsDoneOnceWhenThePageAnswersLate) {
    int calls = 0;
    keeper.keepNow([&] { ++calls; });
    window.pass(pagePatience);
    EXPECT_EQ(calls, 1);
    window.answer(work);
    EXPECT_EQ(calls, 1);
}

TEST_F(WorkKeeperTest, AsksForAllOfTheWorkAfterAnAnswerThatWasLost) {
    keep(std::nullopt);
    keep(work);
    EXPECT_NE(window.scripts[1].find("whole"), std::string::npos);
    keep(R"({"state":"same"})");
    keep(work);
    EXPECT_EQ(window.scripts[3].find("whole"), std::string::npos);
}

TEST_F(WorkKeeperTest, KeepsNothingOfWorkThatWasDiscardedMeanwhile) {
    keeper.keepNow([] {});
    keeper.discard();
    window.answer(work);
    EXPECT_FALSE(isKept());
}

TEST_F(WorkKeeperTest, MayEndBeforeThePageAnswers) {
    bool isDone = false;
    {
        WorkKeeper ended(window, folder);
        ended.keepNow([&] { isDone = true; });
    }
    window.answer(work);
    EXPECT_TRUE(isDone);
    EXPECT_FALSE(isKept());
}

TEST_F(WorkKeeperTest, LeavesTheCopyOfWorkThatAPageLostWithItsProcess) {
    keep(work);
    keeper.pageDied();
    keep(none);
    EXPECT_EQ(leftWorkCopies(folder).size(), 1U);
    keep(work);
    keep(none);
    EXPECT_EQ(folder.list().size(), 1U) << "the later copy is gone, the earlier stays";
}
