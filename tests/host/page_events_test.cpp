#include "app/window/page_events.h"

#include <gtest/gtest.h>

TEST(DiscardQuestionOf, GivesThePagesTexts) {
    const auto question = discardQuestionOf(R"({"title":"\u00dc","text":"Discard?","discard":"Yes","cancel":"No"})");
    ASSERT_TRUE(question);
    EXPECT_EQ(question->title, "\u00dc");
    EXPECT_EQ(question->text, "Discard?");
    EXPECT_EQ(question->discard, "Yes");
    EXPECT_EQ(question->cancel, "No");
}

TEST(DiscardQuestionOf, GivesNothingWhereThePageAsksNothing) {
    for (const char* answer : {"null", "", "1", "[]", "\"text\"", "{"})
        EXPECT_FALSE(discardQuestionOf(answer)) << answer;
    EXPECT_FALSE(discardQuestionOf(std::nullopt));
}

TEST(UnsavedWorkOf, ReadsWhatThePageHas) {
    const auto work = unsavedWorkOf(R"({"state":"changed","name":"\u00fc.tessary","text":"{\n\u0000}"})");
    ASSERT_TRUE(work);
    EXPECT_EQ(work->state, UnsavedWork::State::changed);
    EXPECT_EQ(work->name, "\u00fc.tessary");
    EXPECT_EQ(work->text, std::string("{\n\0}", 4));
    EXPECT_EQ(unsavedWorkOf(R"({"state":"none"})")->state, UnsavedWork::State::none);
    EXPECT_EQ(unsavedWorkOf(R"({"state":"same"})")->state, UnsavedWork::State::same);
    for (const char* answer : {"null", "{}", R"({"state":"odd"})"}) EXPECT_FALSE(unsavedWorkOf(answer)) << answer;
}
