#include <gtest/gtest.h>
#include <windows.h>

#include "app/command_line.h"
#include "bridge/files/documents.h"
#include "bridge/text/native_path.h"
#include "temporary_folder.h"

/// These texts are written in the Western code page.
class NativePath : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(GetACP(), 1252u); }
    TemporaryFolder folder;
};

TEST_F(NativePath, IsReadInTheCodePage) {
    EXPECT_EQ(pathFromNarrow("C:\\\xDC"
                             "bung"),
              std::filesystem::path(L"C:\\Übung"));
    EXPECT_EQ(narrowFromPath(std::filesystem::path(L"C:\\Übung")),
              "C:\\\xDC"
              "bung");
    EXPECT_EQ(utf8FromPath(std::filesystem::path(L"C:\\Übung")), "C:\\Übung");
    EXPECT_EQ(pathFromNarrow(""), std::filesystem::path());
}

TEST_F(NativePath, ReplacesWhatTheCodePageLacks) { EXPECT_EQ(narrowFromPath(std::filesystem::path(L"漢.x")), "?.x"); }

TEST_F(NativePath, IsWhatFilesAreOpenedBy) {
    const std::string narrow = narrowFromPath(folder.path() / L"Übung");
    EXPECT_TRUE(Documents().write(narrow, "text").success);
    EXPECT_TRUE(std::filesystem::exists(folder.path() / L"Übung"));
    EXPECT_EQ(Documents().read(narrow).payload, "text");
}

TEST_F(NativePath, IsNotUtf8) {
    const std::string utf8 = utf8FromPath(folder.path() / L"漢");
    putBytes(narrowFromPath(folder.path() / L"x"), "");
    EXPECT_EQ(Documents().read(utf8).error, "file-not-found");
}

TEST_F(NativePath, IsWhatTheCommandLineGives) {
    const std::string narrow = narrowFromPath(folder.path() / L"Übung");
    EXPECT_TRUE(Documents().write(narrow, "{}").success);
    const char* arguments[] = {"tessary", narrow.c_str()};
    EXPECT_EQ(parseCommandLine(2, arguments).filePath, narrow);
}

TEST_F(NativePath, IsNotFoundWhereItsCharactersWereReplaced) {
    const char* arguments[] = {"tessary", "?.tessary"};
    EXPECT_EQ(parseCommandLine(2, arguments).error, "File not found: ?.tessary");
}
