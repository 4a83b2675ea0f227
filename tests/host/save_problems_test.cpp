#include "app/window/save_problems.h"

#include <gtest/gtest.h>

TEST(SaveProblems, SayWhichFileWhyAndWhereTheTextIs) {
    SaveProblems problems;
    problems.add(
        FailedSave{"here/notes.words.tessary", "No space left on device", "here/notes.words.tessary.new-text"});
    const NoticeContent notice = problems.content();
    EXPECT_EQ(notice.heading, "“notes.words.tessary” could not be saved");
    EXPECT_EQ(notice.text,
              "The window shows it as saved, but not all of it is in the file.\n\n"
              "here/notes.words.tessary\nNo space left on device. "
              "The whole text is in this file, which opens like any document:\nhere/notes.words.tessary.new-text");
}

TEST(SaveProblems, SayThatATextIsInTheWindowOnly) {
    SaveProblems problems;
    problems.add(FailedSave{"here/notes", "No space left on device", {}});
    EXPECT_NE(problems.content().text.find("is in the window only: save it under another name."), std::string::npos);
}

TEST(SaveProblems, SayWhereTheTextOfAnotherProgramIs) {
    SaveProblems problems;
    problems.add(ReplacedText{"here/notes", "here/notes.before-save", ""});
    const NoticeContent notice = problems.content();
    EXPECT_EQ(notice.heading, "“notes” was changed by another program");
    EXPECT_TRUE(notice.text.ends_with("The other text is kept in this file:\nhere/notes.before-save"));
}

TEST(SaveProblems, SayWhyTheTextOfAnotherProgramIsLost) {
    SaveProblems problems;
    problems.add(ReplacedText{"here/notes", {}, "Permission denied"});
    EXPECT_TRUE(problems.content().text.ends_with("The other text could not be kept: Permission denied."));
}

TEST(SaveProblems, NameADocumentOnceThatFailsAgain) {
    SaveProblems problems;
    problems.add(FailedSave{"notes", "first reason", "rescued"});
    problems.add(FailedSave{"notes", "second reason", "rescued"});
    EXPECT_EQ(problems.content().text.find("first reason"), std::string::npos);
    EXPECT_NE(problems.content().text.find("second reason"), std::string::npos);
}

TEST(SaveProblems, CountTheDocuments) {
    SaveProblems problems;
    problems.add(ReplacedText{"a", "a.before-save", ""});
    problems.add(ReplacedText{"b", "b.before-save", ""});
    EXPECT_EQ(problems.content().heading, "2 documents were changed by another program");
    problems.add(FailedSave{"a", "reason", "rescued"});
    problems.add(FailedSave{"b", "reason", "rescued"});
    EXPECT_EQ(problems.content().heading, "2 documents could not be saved");
}

TEST(SaveProblems, AreOverWhenTheDocumentIsSaved) {
    SaveProblems problems;
    problems.add(FailedSave{"notes", "reason", "rescued"});
    EXPECT_FALSE(problems.mend("others"));
    EXPECT_FALSE(problems.empty());
    EXPECT_TRUE(problems.mend("notes"));
    EXPECT_TRUE(problems.empty());
}
