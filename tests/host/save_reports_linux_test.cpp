#include <gtest/gtest.h>
#include <sys/stat.h>

#include <vector>

#include "bridge/files/documents.h"
#include "file_size_limit.h"
#include "other_user_linux.h"
#include "temporary_folder.h"

namespace {
class ReportsOnLinux final : public SaveReporter {
public:
    void failed(const FailedSave& save) override { failures.push_back(save); }
    void replaced(const ReplacedText& text) override { replacements.push_back(text); }
    void saved(const std::filesystem::path&) override {}

    std::vector<FailedSave> failures;
    std::vector<ReplacedText> replacements;
};
}  // namespace

class SaveReportsOnLinux : public testing::Test {
protected:
    TemporaryFolder folder;
    ReportsOnLinux seen;
    Documents documents{seen, RescueFolder(folder.path() / "rescue")};
    std::string path = folder.file("notes.words.tessary");
};

TEST_F(SaveReportsOnLinux, NameTheRecoveryFileOfAReadOnlyDocument) {
    putBytes(path, "old");
    chmod(path.c_str(), 0444);
    chmod(folder.path().c_str(), 0777);
    {
        const AsOrdinaryUser user;
        EXPECT_EQ(documents.write(path, "new").error, "file-write-failed");
        EXPECT_EQ(documents.write(path, "newer").error, "file-write-failed");
    }
    ASSERT_EQ(seen.failures.size(), 2U);
    EXPECT_EQ(seen.failures[1].reason, "Permission denied");
    EXPECT_EQ(seen.failures[1].text, path + ".new-text");
    EXPECT_EQ(bytesOf(path + ".new-text"), "newer");
    EXPECT_EQ(bytesOf(path), "old");
}

TEST_F(SaveReportsOnLinux, GiveTheSystemsWordsForAMissingFolder) {
    EXPECT_EQ(documents.write(folder.file("gone") + "/notes", "text").error, "file-write-failed");
    ASSERT_EQ(seen.failures.size(), 1U);
    EXPECT_EQ(seen.failures[0].reason, "No such file or directory");
}

TEST_F(SaveReportsOnLinux, TellOfADiskThatTakesNoMore) {
    putBytes(path, "old");
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(documents.write(path, std::string(2000, 'x')).error, "file-write-failed");
        EXPECT_TRUE(documents.write(folder.file("new"), std::string(2000, 'x')).success);
    }
    ASSERT_EQ(seen.failures.size(), 2U);
    EXPECT_EQ(seen.failures[0].reason, "File too large");
    EXPECT_EQ(seen.failures[1].reason, "File too large");
    // What is left of it is this program's own.
    EXPECT_TRUE(documents.write(folder.file("new"), std::string(2000, 'x')).success);
    EXPECT_TRUE(seen.replacements.empty());
}
