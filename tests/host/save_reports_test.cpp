#include <gtest/gtest.h>

#include <chrono>
#include <vector>

#include "bridge/files/documents.h"
#include "temporary_folder.h"

namespace {
class Recorder final : public SaveReporter {
public:
    void failed(const FailedSave& save) override { failures.push_back(save); }
    void replaced(const ReplacedText& text) override { replacements.push_back(text); }
    void saved(const std::filesystem::path& document) override { saves.push_back(document); }

    std::vector<FailedSave> failures;
    std::vector<ReplacedText> replacements;
    std::vector<std::filesystem::path> saves;
};
}  // namespace

class SaveReports : public testing::Test {
protected:
    TemporaryFolder folder;
    Recorder seen;
    RescueFolder rescue{folder.path() / "rescue"};
    Documents documents{seen, rescue};
    std::string path = folder.file("notes.words.tessary");
    std::string other = path + ".before-save";
};

class ATextWithoutAPlace : public SaveReports {
protected:
    std::string gone = folder.file("folder") + "/notes.words.tessary";
};

TEST_F(ATextWithoutAPlace, IsInTheRescueFolder) {
    EXPECT_EQ(documents.write(gone, "text\n").error, "file-write-failed");
    ASSERT_EQ(seen.failures.size(), 1U);
    EXPECT_EQ(seen.failures[0].document, gone);
    EXPECT_EQ(seen.failures[0].text, rescue.path() / "notes (not saved).words.tessary");
    EXPECT_EQ(Documents().read(seen.failures[0].text.string()).payload, "text\n");
    EXPECT_FALSE(seen.failures[0].reason.empty());
}

TEST_F(ATextWithoutAPlace, IsReplacedThereByItsSuccessor) {
    static_cast<void>(documents.write(gone, "first"));
    static_cast<void>(documents.write(gone, "second"));
    ASSERT_EQ(rescue.list().size(), 1U);
    EXPECT_EQ(bytesOf(rescue.list()[0].path.string()), "second");
    EXPECT_EQ(seen.failures.size(), 2U);
}

TEST_F(ATextWithoutAPlace, LeavesThoseOfOtherProgramsAlone) {
    static_cast<void>(documents.write(gone, "of this program"));
    Documents another{seen, rescue};
    static_cast<void>(another.write(gone, "of another program"));
    ASSERT_EQ(rescue.list().size(), 2U);
    EXPECT_EQ(bytesOf((rescue.path() / "notes (not saved).words.tessary").string()), "of this program");
    EXPECT_EQ(bytesOf((rescue.path() / "notes (not saved) 2.words.tessary").string()), "of another program");
}

TEST_F(ATextWithoutAPlace, IsOfNoInterestOnceTheDocumentIsSaved) {
    static_cast<void>(documents.write(gone, "text"));
    std::filesystem::create_directory(folder.path() / "folder");
    EXPECT_TRUE(documents.write(gone, "text").success);
    EXPECT_TRUE(rescue.list().empty());
    EXPECT_EQ(seen.saves, std::vector<std::filesystem::path>{gone});
}

TEST_F(ATextWithoutAPlace, IsReportedEvenWhereThereIsNoRescueFolder) {
    Documents poor{seen, RescueFolder(std::filesystem::path())};
    static_cast<void>(poor.write(gone, "text"));
    ASSERT_EQ(seen.failures.size(), 1U);
    EXPECT_TRUE(seen.failures[0].text.empty());
}

class ATextOfAnotherProgram : public SaveReports {
protected:
    void SetUp() override {
        putBytes(path, "as opened");
        ASSERT_EQ(documents.read(path).payload, "as opened");
    }

    /// Without waiting until the system's clock has moved on.
    void putLater(const std::string& bytes) const {
        putBytes(path, bytes);
        const auto time = std::filesystem::last_write_time(path);
        std::filesystem::last_write_time(path, time + std::chrono::seconds(2));
    }
};

TEST_F(ATextOfAnotherProgram, IsKeptBesideTheDocument) {
    putLater("of another program");
    EXPECT_TRUE(documents.write(path, "mine").success);
    EXPECT_EQ(bytesOf(path), "mine");
    EXPECT_EQ(bytesOf(other), "of another program");
    ASSERT_EQ(seen.replacements.size(), 1U);
    EXPECT_EQ(seen.replacements[0].document, path);
    EXPECT_EQ(seen.replacements[0].kept, other);
}

TEST_F(ATextOfAnotherProgram, IsKeptWithAllEarlierOnes) {
    for (const char* text : {"first", "second", "third"}) {
        putLater(text);
        EXPECT_TRUE(documents.write(path, "mine").success);
    }
    EXPECT_EQ(bytesOf(other), "first");
    EXPECT_EQ(bytesOf(other + ".1"), "second");
    EXPECT_EQ(bytesOf(other + ".2"), "third");
}

TEST_F(ATextOfAnotherProgram, IsNoticedAfterASaveToo) {
    EXPECT_TRUE(documents.write(path, "mine").success);
    EXPECT_TRUE(seen.replacements.empty());
    putLater("of another program");
    EXPECT_TRUE(documents.write(path, "mine again").success);
    EXPECT_EQ(bytesOf(other), "of another program");
}

TEST_F(ATextOfAnotherProgram, IsNoticedInAFileOfItsOwn) {
    putBytes(folder.file("new"), "of another program");
    std::filesystem::rename(folder.file("new"), path);
    EXPECT_TRUE(documents.write(path, "mine").success);
    EXPECT_EQ(bytesOf(other), "of another program");
}

TEST_F(ATextOfAnotherProgram, IsNotNoticedInWhatWasReadAgain) {
    putLater("of another program");
    EXPECT_EQ(documents.read(path).payload, "of another program");
    EXPECT_TRUE(documents.write(path, "mine").success);
    EXPECT_TRUE(seen.replacements.empty());
}

TEST_F(ATextOfAnotherProgram, IsNotNoticedWhenItIsTheSame) {
    putLater("as opened");
    EXPECT_TRUE(documents.write(path, "mine").success);
    EXPECT_TRUE(seen.replacements.empty());
    EXPECT_FALSE(std::filesystem::exists(other));
}

TEST_F(ATextOfAnotherProgram, IsNotNoticedInAFileThatWasNeverOpenedHere) {
    const std::string chosen = folder.file("chosen to be replaced");
    putBytes(chosen, "old");
    EXPECT_TRUE(documents.write(chosen, "mine").success);
    EXPECT_TRUE(seen.replacements.empty());
}

TEST_F(ATextOfAnotherProgram, IsNotWhatThisProgramWroteUnderAnotherName) {
    const std::string link = folder.file("link");
    std::filesystem::create_hard_link(path, link);
    EXPECT_TRUE(documents.write(link, "mine").success);
    EXPECT_TRUE(documents.write(path, "mine again").success);
    EXPECT_TRUE(seen.replacements.empty());
}

TEST_F(ATextOfAnotherProgram, IsInTheRescueFolderWhenItCannotBeBesideTheDocument) {
    std::filesystem::create_directories(std::filesystem::path(other + ".incomplete") / "taken");
    putLater("of another program");
    EXPECT_TRUE(documents.write(path, "mine").success);
    ASSERT_EQ(seen.replacements.size(), 1U);
    EXPECT_EQ(seen.replacements[0].kept, rescue.path() / "notes (before save).words.tessary");
    EXPECT_EQ(bytesOf(seen.replacements[0].kept.string()), "of another program");
}
