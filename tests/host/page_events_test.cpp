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
