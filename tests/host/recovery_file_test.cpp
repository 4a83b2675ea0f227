#include "bridge/files/recovery_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "bridge/files/documents.h"
#include "document_with_recovery_file.h"

class RecoveryFiles : public DocumentWithRecoveryFile {
protected:
    void SetUp() override { putBytes(document, "old text"); }

    using Names = std::vector<std::string>;
    [[nodiscard]] Names names() const {
        Names found;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            found.push_back(entry.path().filename().string());
        std::sort(found.begin(), found.end());
        return found;
    }
};

TEST_F(RecoveryFiles, HoldTheNewTextBesideAnUntouchedDocument) {
    EXPECT_EQ(write("new text").result, WriteResult::written);
    EXPECT_EQ(bytesOf(document), "old text");
    EXPECT_EQ(bytesOf(recovery), "new text");
    EXPECT_FALSE(std::filesystem::exists(incomplete));
}

TEST_F(RecoveryFiles, AreGoneAfterASave) {
    EXPECT_TRUE(Documents().write(document, "new text").success);
    EXPECT_EQ(names(), Names{"notes.words.tessary"});
    EXPECT_EQ(bytesOf(document), "new text");
}

TEST_F(RecoveryFiles, WithAnotherTextAreMovedAsideBeforeASave) {
    for (const std::string text : {"first text that nobody has read", "second", "old text and more"}) {
        putBytes(document, "old text");
        putBytes(recovery, text);
        putBytes(incomplete, "part of");
        EXPECT_TRUE(Documents().write(document, "new text").success);
    }
    EXPECT_EQ(names(), (Names{"notes.words.tessary", "notes.words.tessary.new-text.1", "notes.words.tessary.new-text.2",
                              "notes.words.tessary.new-text.3"}));
    EXPECT_EQ(bytesOf(recovery + ".1"), "first text that nobody has read");
    EXPECT_EQ(bytesOf(recovery + ".2"), "second");
    EXPECT_EQ(bytesOf(recovery + ".3"), "old text and more");
}

TEST_F(RecoveryFiles, WithTheDocumentsOwnTextGoWithASave) {
    putBytes(recovery, "old text");
    EXPECT_TRUE(Documents().write(document, "new text").success);
    EXPECT_EQ(names(), Names{"notes.words.tessary"});
}

TEST_F(RecoveryFiles, AreNotMadeForANewDocument) {
    const std::string created = folder.file("created.words.tessary");
    EXPECT_TRUE(Documents().write(created, "text").success);
    EXPECT_EQ(bytesOf(created), "text");
    EXPECT_EQ(names(), (Names{"created.words.tessary", "notes.words.tessary"}));
}

TEST_F(RecoveryFiles, OfANewDocumentThatWasCutOffGoWithTheNextSave) {
    std::filesystem::remove(document);
    putBytes(incomplete, "part of");
    EXPECT_TRUE(Documents().write(document, "new text").success);
    EXPECT_EQ(names(), Names{"notes.words.tessary"});
}

TEST_F(RecoveryFiles, DoNotStandInTheWayOfASaveWhereTheyCannotBe) {
    std::filesystem::create_directories(std::filesystem::path(recovery) / "taken");
    EXPECT_EQ(write("text").result, WriteResult::refused);
    EXPECT_TRUE(Documents().write(document, "new text").success);
    EXPECT_EQ(bytesOf(document), "new text");
    EXPECT_EQ(names(), (Names{"notes.words.tessary", "notes.words.tessary.new-text"}));
}

TEST_F(RecoveryFiles, OfAnotherProgramStay) {
    const FileStamp written = write("new text").stamp;
    std::filesystem::rename(recovery, folder.file("elsewhere"));
    putBytes(recovery, "another program's text");
    removeRecoveryFile(document, written);
    EXPECT_EQ(bytesOf(recovery), "another program's text");
}

namespace {
struct CutOff {
    const char* name;
    const char* onDisk;
    const char* newText;
    const char* answer;
    bool recoveryStays;
};
}  // namespace

class ASaveThatWasCutOff : public DocumentWithRecoveryFile, public testing::WithParamInterface<CutOff> {};

TEST_P(ASaveThatWasCutOff, IsFinishedByReadingTheDocument) {
    const CutOff& given = GetParam();
    putBytes(document, given.onDisk);
    putBytes(recovery, given.newText);
    const Outcome outcome = Documents().read(document);
    EXPECT_TRUE(outcome.success);
    EXPECT_EQ(outcome.payload, given.answer);
    EXPECT_EQ(bytesOf(document), given.answer);
    EXPECT_EQ(std::filesystem::exists(recovery), given.recoveryStays);
    if (given.recoveryStays) {
        EXPECT_EQ(bytesOf(recovery), given.newText);
    }
}

INSTANTIATE_TEST_SUITE_P(, ASaveThatWasCutOff,
                         testing::Values(CutOff{"InTheMiddle", "new te", "new text", "new text", false},
                                         CutOff{"AtItsBeginning", "", "new text", "new text", false},
                                         CutOff{"AtItsEnd", "new text", "new text", "new text", false},
                                         CutOff{"BeforeItsFirstByte", "old text", "new text", "old text", true},
                                         CutOff{"AndReplaced", "new text, longer", "new text", "new text, longer",
                                                true},
                                         CutOff{"AndEmptied", "old", "", "old", true}),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(RecoveryFiles, OfADocumentThatIsGoneStay) {
    std::filesystem::remove(document);
    putBytes(recovery, "new text");
    EXPECT_EQ(Documents().read(document).error, "file-not-found");
    EXPECT_EQ(names(), Names{"notes.words.tessary.new-text"});
}

TEST_F(RecoveryFiles, ThatAreFoldersAreNotTouchedByReading) {
    std::filesystem::create_directory(recovery);
    EXPECT_EQ(Documents().read(document).payload, "old text");
    EXPECT_TRUE(std::filesystem::is_directory(recovery));
}

TEST_F(RecoveryFiles, OfADocumentThatIsBeingSavedAreLeftToThatSave) {
    putBytes(document, "new te");
    putBytes(recovery, "new text");
    RegularFile saving = RegularFile::open(document, RegularFile::Access::readAndWrite);
    ASSERT_EQ(saving.lock(std::chrono::milliseconds(0)), RegularFile::Lock::held);
    EXPECT_EQ(Documents().read(document).payload, "new te");
    EXPECT_EQ(bytesOf(recovery), "new text");
}

TEST_F(RecoveryFiles, OfAnotherNameOfTheDocumentFinishItToo) {
    const std::string other = folder.file("other name.words.tessary");
    std::filesystem::create_hard_link(document, other);
    putBytes(document, "new te");
    putBytes(recovery, "new text");
    EXPECT_EQ(Documents().read(other).payload, "new text");
    EXPECT_FALSE(std::filesystem::exists(recovery));
}
