#include "bridge/files/file_io.h"

#include <gtest/gtest.h>

#include <thread>

#include "temporary_folder.h"

class FileIo : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string path = folder.file("document.words.tessary");

    void expectRead(const std::string& content) const {
        const Outcome outcome = readTextFile(path);
        EXPECT_TRUE(outcome.success);
        EXPECT_EQ(outcome.payload, content);
        EXPECT_EQ(outcome.error, "");
    }
};

TEST_F(FileIo, ReadsAnEmptyFileAsEmptyText) {
    putBytes(path, "");
    expectRead("");
}

TEST_F(FileIo, GivesBackWhatItWrote) {
    const std::string text = "first\nsecond é À ÿ 漢字 \xF0\x9F\x98\x80\n\tend";
    EXPECT_TRUE(writeTextFile(path, text).success);
    expectRead(text);
}

TEST_F(FileIo, PassesBytesThatAreNotUtf8) {
    putBytes(path, "\xFF\xFE\x80");
    expectRead("\xFF\xFE\x80");
}

TEST_F(FileIo, ReplacesTheWholeContentOfAFile) {
    putBytes(path, std::string(5000, 'x'));
    const Outcome outcome = writeTextFile(path, "short");
    EXPECT_TRUE(outcome.success);
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(bytesOf(path), "short");
}

TEST_F(FileIo, EmptiesAFile) {
    putBytes(path, "old");
    EXPECT_TRUE(writeTextFile(path, "").success);
    EXPECT_EQ(bytesOf(path), "");
}

TEST_F(FileIo, CannotFindAMissingFile) { EXPECT_EQ(readTextFile(path).error, "file-not-found"); }

TEST_F(FileIo, CannotFindAFolder) {
    const Outcome outcome = readTextFile(folder.path().string());
    EXPECT_FALSE(outcome.success);
    EXPECT_EQ(outcome.error, "file-not-found");
}

TEST_F(FileIo, CannotFindAnEmptyPath) { EXPECT_EQ(readTextFile("").error, "file-not-found"); }

TEST_F(FileIo, CannotWriteIntoAMissingFolder) {
    const Outcome outcome = writeTextFile(folder.file("missing") + "/file", "text");
    EXPECT_FALSE(outcome.success);
    EXPECT_EQ(outcome.error, "file-write-failed");
}

TEST_F(FileIo, CannotWriteOverAFolder) {
    EXPECT_EQ(writeTextFile(folder.path().string(), "text").error, "file-write-failed");
}

TEST_F(FileIo, LeavesOneOfTwoTextsThatAreSavedAtTheSameMoment) {
    const std::string one(300'000, '1');
    const std::string other(100'000, '2');
    putBytes(path, "old");
    static constexpr int rounds = 100;
    int whole = 0;
    for (int round = 0; round < rounds; ++round) {
        std::thread saving([&] { static_cast<void>(writeTextFile(path, other)); });
        EXPECT_TRUE(writeTextFile(path, one).success);
        saving.join();
        const std::string text = bytesOf(path);
        if (text == one || text == other) ++whole;
    }
    EXPECT_EQ(whole, rounds);
}
