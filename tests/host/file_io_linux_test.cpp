#include <gtest/gtest.h>

#include "bridge/files/file_io.h"
#include "bridge/files/save_lock.h"
#include "temporary_folder.h"

TEST(FileIoOnLinux, LeavesLineEndsAlone) {
    const TemporaryFolder folder;
    const std::string path = folder.file("lines");
    EXPECT_TRUE(writeTextFile(path, "a\nb\r\n").success);
    EXPECT_EQ(bytesOf(path), "a\nb\r\n");
    EXPECT_EQ(readTextFile(path).payload, "a\nb\r\n");
}

TEST(FileIoOnLinux, TakesUtf8FileNames) {
    const TemporaryFolder folder;
    const std::string path = folder.file("Übung 漢字");
    EXPECT_TRUE(writeTextFile(path, "text").success);
    EXPECT_EQ(readTextFile(path).payload, "text");
}

TEST(FileIoOnLinux, DoesNotNoticeAFullDisk) {
    if (!std::filesystem::exists("/dev/full")) FAIL() << "/dev/full is missing on this system";
    EXPECT_TRUE(writeTextFile("/dev/full", std::string(100'000, 'x')).success);
}

TEST(FileIoOnLinux, SavesWhileAProgramThatHangsHasTheTurn) {
    const TemporaryFolder folder;
    const std::string path = folder.file("document");
    const SaveLock hanging = acquireSaveLock(path);
    ASSERT_TRUE(hanging);
    EXPECT_TRUE(writeTextFile(path, "text").success);
    EXPECT_EQ(bytesOf(path), "text");
}
