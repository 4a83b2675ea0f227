#include <gtest/gtest.h>

#include "bridge/files/documents.h"
#include "temporary_folder.h"

TEST(DocumentsOnWindows, WritesLineEndsAsCrLf) {
    const TemporaryFolder folder;
    const std::string path = folder.file("lines");
    EXPECT_TRUE(Documents().write(path, "a\nb\n").success);
    EXPECT_EQ(bytesOf(path), "a\r\nb\r\n");
}

TEST(DocumentsOnWindows, ReadsCrLfAsLf) {
    const TemporaryFolder folder;
    const std::string path = folder.file("lines");
    putBytes(path, "a\r\nb\r\nc\rd\n");
    EXPECT_EQ(Documents().read(path).payload, "a\nb\nc\rd\n");
}
