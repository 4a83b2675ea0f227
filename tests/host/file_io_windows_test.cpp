#include <gtest/gtest.h>

#include "bridge/files/file_io.h"
#include "temporary_folder.h"

TEST(FileIoOnWindows, WritesLineEndsAsCrLf) {
    const TemporaryFolder folder;
    const std::string path = folder.file("lines");
    EXPECT_TRUE(writeTextFile(path, "a\nb\n").success);
    EXPECT_EQ(bytesOf(path), "a\r\nb\r\n");
}

TEST(FileIoOnWindows, ReadsCrLfAsLf) {
    const TemporaryFolder folder;
    const std::string path = folder.file("lines");
    putBytes(path, "a\r\nb\r\nc\rd\n");
    EXPECT_EQ(readTextFile(path).payload, "a\nb\nc\rd\n");
}
