#include "bridge/files/recovery_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "bridge/files/file_io.h"
#include "document_with_recovery_file.h"

class RecoveryFiles : public DocumentWithRecoveryFile {
protected:
    void SetUp() override { putBytes(document, "old text"); }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            found.push_back(entry.path().filename().string());
        std::sort(found.begin(), found.end());
        return found;
    }
};

TEST_F(RecoveryFiles, HoldTheNewTextBesideAnUntouchedDocument) {
    EXPECT_EQ(writeRecoveryFile(document, "new text"), RecoveryFile::written);
    EXPECT_EQ(bytesOf(document), "old text");
    EXPECT_EQ(bytesOf(recovery), "new text");
    EXPECT_FALSE(std::filesystem::exists(incomplete));
}

TEST_F(RecoveryFiles, HaveTheBytesThatTheDocumentWillHave) {
    const std::string text = "line\nline é 漢\r\n" + std::string(3'000'000, 'x') + "\nend";
    ASSERT_EQ(writeRecoveryFile(document, text), RecoveryFile::written);
    const std::string bytes = bytesOf(recovery);
    ASSERT_TRUE(writeTextFile(document, text).success);
    EXPECT_TRUE(bytesOf(document) == bytes);
}

TEST_F(RecoveryFiles, AreGoneAfterASave) {
    EXPECT_TRUE(writeTextFile(document, "new text").success);
    EXPECT_EQ(names(), std::vector<std::string>{"notes.words.tessary"});
    EXPECT_EQ(bytesOf(document), "new text");
}

TEST_F(RecoveryFiles, OfASaveThatWasCutOffGoWithTheNextSave) {
    putBytes(recovery, "whole text of an earlier save");
    putBytes(incomplete, "part of");
    EXPECT_TRUE(writeTextFile(document, "new text").success);
    EXPECT_EQ(names(), std::vector<std::string>{"notes.words.tessary"});
}

TEST_F(RecoveryFiles, AreNotMadeForANewDocument) {
    const std::string created = folder.file("created.words.tessary");
    EXPECT_TRUE(writeTextFile(created, "text").success);
    EXPECT_EQ(bytesOf(created), "text");
    EXPECT_EQ(names(), (std::vector<std::string>{"created.words.tessary", "notes.words.tessary"}));
}

TEST_F(RecoveryFiles, DoNotStandInTheWayOfASaveWhereTheyCannotBe) {
    std::filesystem::create_directories(std::filesystem::path(recovery) / "taken");
    EXPECT_EQ(writeRecoveryFile(document, "text"), RecoveryFile::impossible);
    EXPECT_TRUE(writeTextFile(document, "new text").success);
    EXPECT_EQ(bytesOf(document), "new text");
    EXPECT_EQ(names(), (std::vector<std::string>{"notes.words.tessary", "notes.words.tessary.new-text"}));
}

TEST_F(RecoveryFiles, StayWhenTheDocumentIsNotKnownToBeOnTheDisk) {
    ASSERT_EQ(writeRecoveryFile(document, "new text"), RecoveryFile::written);
    std::filesystem::remove(document);
    removeRecoveryFile(document);
    EXPECT_EQ(bytesOf(recovery), "new text");
}
