#include "bridge/files/work_copies.h"

#include <gtest/gtest.h>

#include "temporary_folder.h"

namespace {
struct WorkCopies : testing::Test {
    TemporaryFolder outside;
    RescueFolder folder{outside.path() / "tessary"};

    [[nodiscard]] std::string contentOf(const std::string& name) const {
        return bytesOf((folder.path() / name).string());
    }
    [[nodiscard]] std::vector<std::string> left() const {
        std::vector<std::string> names;
        for (const RescuedText& copy : leftWorkCopies(folder)) names.push_back(copy.path.filename().string());
        return names;
    }
};
using Names = std::vector<std::string>;
}  // namespace

TEST_F(WorkCopies, AreNamedAfterTheDocument) {
    EXPECT_EQ(stemOfWorkCopy("notes.words.tessary"), "notes");
    EXPECT_EQ(stemOfWorkCopy("notes.tessary"), "notes");
    EXPECT_EQ(stemOfWorkCopy("notes (unsaved).words.tessary"), "notes");
    EXPECT_EQ(stemOfWorkCopy("notes (unsaved 12).words.tessary"), "notes");
    EXPECT_EQ(stemOfWorkCopy("a/b\\c:\n.txt"), "a_b_c__.txt");
    EXPECT_EQ(stemOfWorkCopy(""), "Untitled");
    EXPECT_EQ(stemOfWorkCopy(".."), "Untitled");
    EXPECT_EQ(stemOfWorkCopy(std::string(119, 'a') + "\u00fc"), std::string(119, 'a'));
    EXPECT_EQ(nameOfWorkCopy("notes", 1), "notes (unsaved).words.tessary");
    EXPECT_EQ(nameOfWorkCopy("notes", 2), "notes (unsaved 2).words.tessary");
    EXPECT_TRUE(isNameOfWorkCopy("notes (unsaved 2).words.tessary"));
    EXPECT_FALSE(isNameOfWorkCopy("notes.words.tessary"));
    EXPECT_FALSE(isNameOfWorkCopy("notes (unsaved).words.tessary.lock"));
}

TEST_F(WorkCopies, HoldTheLatestTextAndGoWhenTheWorkIsSaved) {
    WorkCopy copy(folder);
    EXPECT_FALSE(copy.exists());
    EXPECT_TRUE(copy.write("a.words.tessary", "one"));
    EXPECT_TRUE(copy.write("a.words.tessary", "two"));
    EXPECT_EQ(contentOf("a (unsaved).words.tessary"), "two");
    EXPECT_TRUE(copy.write("b.words.tessary", "three"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "a (unsaved).words.tessary"));
    copy.remove();
    EXPECT_TRUE(folder.list().empty());
    EXPECT_TRUE(std::filesystem::is_empty(folder.path() / "running"));
}

TEST_F(WorkCopies, OfRunsAtTheSameTimeLeaveEachOtherAlone) {
    WorkCopy first(folder);
    WorkCopy second(folder);
    EXPECT_TRUE(first.write("a.words.tessary", "first"));
    EXPECT_TRUE(second.write("a.words.tessary", "second"));
    EXPECT_EQ(contentOf("a (unsaved).words.tessary"), "first");
    EXPECT_EQ(contentOf("a (unsaved 2).words.tessary"), "second");
    EXPECT_EQ(left(), Names{}) << "both runs are alive";
    first.remove();
    EXPECT_EQ(contentOf("a (unsaved 2).words.tessary"), "second");
}

TEST_F(WorkCopies, AreOfferedWhenTheirRunHasEndedAndNeverOverwritten) {
    {
        WorkCopy ended(folder);
        EXPECT_TRUE(ended.write("a.words.tessary", "old"));
    }
    EXPECT_EQ(left(), Names{"a (unsaved).words.tessary"});
    WorkCopy next(folder);
    EXPECT_TRUE(next.write("a.words.tessary", "new"));
    EXPECT_EQ(contentOf("a (unsaved).words.tessary"), "old");
    EXPECT_EQ(left(), Names{"a (unsaved).words.tessary"});
    next.leave();
    EXPECT_EQ(left(), (Names{"a (unsaved 2).words.tessary", "a (unsaved).words.tessary"}));
}

TEST_F(WorkCopies, AreDoneWithoutWhereTheFolderCannotBeUsed) {
    putBytes((outside.path() / "tessary").string(), "a file");
    WorkCopy copy(folder);
    EXPECT_FALSE(copy.write("a.words.tessary", "work"));
    EXPECT_FALSE(copy.exists());
    EXPECT_EQ(left(), Names{});
    WorkCopy nowhere{RescueFolder(std::filesystem::path())};
    EXPECT_FALSE(nowhere.write("a.words.tessary", "work"));
}
