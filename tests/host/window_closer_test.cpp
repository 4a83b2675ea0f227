#include "app/window/window_closer.h"

#include <gtest/gtest.h>

#include "fake_page_window.h"
#include "temporary_folder.h"

namespace {
const std::string question = R"({"title":"Unsaved","text":"Discard?","discard":"Discard","cancel":"Cancel"})";

struct WindowCloserTest : testing::Test {
    TemporaryFolder folder;
    FakePageWindow window;
    WorkKeeper keeper{window, RescueFolder(folder.path())};
    WindowCloser closer{window, keeper};
};
}  // namespace

TEST_F(WindowCloserTest, ClosesWithoutAQuestionWhenThePageHasNoUnsavedWork) {
    closer.requestClose();
    EXPECT_FALSE(window.closed);
    window.answer("null");
    window.answer("null");
    EXPECT_TRUE(window.closed);
    EXPECT_TRUE(window.questions.empty());
}

TEST_F(WindowCloserTest, AsksInThePagesWordsAndStaysOpenAfterACancel) {
    closer.requestClose();
    window.answer(question);
    ASSERT_EQ(window.questions, std::vector<std::string>{"Discard?"});
    window.answered(false);
    EXPECT_FALSE(window.closed);
    closer.requestClose();
    window.answer(question);
    window.answered(true);
    window.answer("null");
    EXPECT_TRUE(window.closed);
}

TEST_F(WindowCloserTest, AsksOnceHoweverOftenTheUserCloses) {
    closer.requestClose();
    closer.requestClose();
    EXPECT_EQ(window.scripts.size(), 1U);
    window.answer(question);
    closer.requestClose();
    EXPECT_EQ(window.scripts.size(), 1U);
    EXPECT_EQ(window.questions.size(), 1U);
}

TEST_F(WindowCloserTest, ClosesAfterTwoSecondsWhenThePageHangs) {
    closer.requestClose();
    window.pass(std::chrono::milliseconds(1999));
    EXPECT_FALSE(window.closed);
    window.pass(std::chrono::milliseconds(1));
    EXPECT_TRUE(window.closed);
    window.answer(question);
    EXPECT_TRUE(window.questions.empty()) << "a late answer asks nothing any more";
}

TEST_F(WindowCloserTest, KeepsTheCopyOfWorkThatWasNotLetGo) {
    const std::string copy = folder.file("a (unsaved).words.tessary");
    keeper.keepNow([] {});
    window.answer(R"({"state":"changed","name":"a.words.tessary","text":"work"})");
    closer.requestClose();
    window.answer(question);
    EXPECT_TRUE(std::filesystem::exists(copy));
    window.answered(true);
    EXPECT_FALSE(std::filesystem::exists(copy)) << "discarded";

    FakePageWindow hanging;
    WorkKeeper other(hanging, RescueFolder(folder.path()));
    WindowCloser otherCloser(hanging, other);
    other.keepNow([] {});
    hanging.answer(R"({"state":"changed","name":"a.words.tessary","text":"work"})");
    otherCloser.requestClose();
    hanging.pass(std::chrono::seconds(2));
    EXPECT_TRUE(hanging.closed);
    EXPECT_TRUE(std::filesystem::exists(copy)) << "nobody said that it may go";
}

TEST_F(WindowCloserTest, ClosesAtOnceWhenThereIsNoPageToAsk) {
    closer.requestClose();
    window.answer(std::nullopt);
    EXPECT_TRUE(window.closed);
}

TEST_F(WindowCloserTest, EndsForTheSystemWithoutAQuestion) {
    closer.requestClose();
    window.answer(question);
    closer.requestEnd();
    closer.requestEnd();
    window.answer(R"({"state":"changed","name":"a.words.tessary","text":"work"})");
    window.answer("null");
    EXPECT_TRUE(window.closed);
    EXPECT_EQ(bytesOf(folder.file("a (unsaved).words.tessary")), "work");
    EXPECT_TRUE(closer.isEnding());
}
