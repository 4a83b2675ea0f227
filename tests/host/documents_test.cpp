#include "bridge/files/documents.h"

#include <gtest/gtest.h>

#include <thread>

#include "temporary_folder.h"

class DocumentsOnDisk : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string path = folder.file("document.words.tessary");

    void expectRead(const std::string& content) const {
        const Outcome outcome = Documents().read(path);
        EXPECT_TRUE(outcome.success);
        EXPECT_EQ(outcome.payload, content);
        EXPECT_EQ(outcome.error, "");
    }
};

TEST_F(DocumentsOnDisk, ReadsAnEmptyFileAsEmptyText) {
    putBytes(path, "");
    expectRead("");
}

TEST_F(DocumentsOnDisk, GivesBackWhatItWrote) {
    const std::string text = "first\nsecond é À ÿ 漢字 \xF0\x9F\x98\x80\n\tend";
    EXPECT_TRUE(Documents().write(path, text).success);
    expectRead(text);
}

TEST_F(DocumentsOnDisk, PassesBytesThatAreNotUtf8) {
    putBytes(path, "\xFF\xFE\x80");
    expectRead("\xFF\xFE\x80");
}

TEST_F(DocumentsOnDisk, ReplacesTheWholeContentOfAFile) {
    putBytes(path, std::string(5000, 'x'));
    const Outcome outcome = Documents().write(path, "short");
    EXPECT_TRUE(outcome.success);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(bytesOf(path), "short");
}

TEST_F(DocumentsOnDisk, EmptiesAFile) {
    putBytes(path, "old");
    EXPECT_TRUE(Documents().write(path, "").success);
    EXPECT_EQ(bytesOf(path), "");
}

TEST_F(DocumentsOnDisk, CannotFindAMissingFile) { EXPECT_EQ(Documents().read(path).error, "file-not-found"); }

TEST_F(DocumentsOnDisk, CannotFindAFolder) {
    const Outcome outcome = Documents().read(folder.path().string());
    EXPECT_FALSE(outcome.success);
    EXPECT_EQ(outcome.error, "file-not-found");
}

TEST_F(DocumentsOnDisk, CannotFindAnEmptyPath) { EXPECT_EQ(Documents().read("").error, "file-not-found"); }

TEST_F(DocumentsOnDisk, CannotWriteIntoAMissingFolder) {
    const Outcome outcome = Documents().write(folder.file("missing") + "/file", "text");
    EXPECT_FALSE(outcome.success);
    EXPECT_EQ(outcome.error, "file-write-failed");
}

TEST_F(DocumentsOnDisk, CannotWriteOverAFolder) {
    EXPECT_EQ(Documents().write(folder.path().string(), "text").error, "file-write-failed");
}

TEST_F(DocumentsOnDisk, LeavesOneOfTwoTextsThatAreSavedAtTheSameMoment) {
    const std::string one(300'000, '1');
    const std::string other(100'000, '2');
    putBytes(path, "old");
    static constexpr int rounds = 100;
    int whole = 0;
    for (int round = 0; round < rounds; ++round) {
        std::thread saving([&] { static_cast<void>(Documents().write(path, other)); });
        EXPECT_TRUE(Documents().write(path, one).success);
        saving.join();
        const std::string text = bytesOf(path);
        if (text == one || text == other) ++whole;
    }
    EXPECT_EQ(whole, rounds);
}

TEST_F(DocumentsOnDisk, HaveOneLockForAllTheirNames) {
    const std::string link = folder.file("link");
    putBytes(path, "text");
    std::filesystem::create_hard_link(path, link);
    const auto lockOf = [](const std::string& name) {
        return RegularFile::open(name, RegularFile::Access::read).lock(std::chrono::milliseconds(0));
    };
    {
        const RegularFile saving = RegularFile::open(path, RegularFile::Access::readAndWrite);
        ASSERT_EQ(saving.lock(std::chrono::milliseconds(0)), RegularFile::Lock::held);
        EXPECT_EQ(lockOf(link), RegularFile::Lock::busy);
        expectRead("text");
    }
    EXPECT_EQ(lockOf(link), RegularFile::Lock::held);
}

TEST_F(DocumentsOnDisk, AreSavedWhileAProgramThatHangsHasTheTurn) {
    putBytes(path, "old");
    const RegularFile hanging = RegularFile::open(path, RegularFile::Access::readAndWrite);
    ASSERT_EQ(hanging.lock(std::chrono::milliseconds(0)), RegularFile::Lock::held);
    EXPECT_TRUE(Documents().write(path, "new").success);
    EXPECT_EQ(bytesOf(path), "new");
}
