#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <cerrno>
#include <cstdint>
#include <utility>
#include <vector>

#include "bridge/files/documents.h"
#include "document_with_recovery_file.h"
#include "file_size_limit.h"
#include "other_user_linux.h"

class RecoveryFilesOnLinux : public DocumentWithRecoveryFile {
protected:
    void SetUp() override { putBytes(document, "old"); }

    static mode_t modeOf(const std::string& path) {
        struct stat status{};
        return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
    }
};

TEST_F(RecoveryFilesOnLinux, HaveTheDocumentsPermissions) {
    for (const mode_t mode : {0600U, 0640U, 0644U, 0664U, 0666U}) {
        chmod(document.c_str(), mode);
        ASSERT_EQ(write("secret").result, WriteResult::written);
        EXPECT_EQ(modeOf(recovery), mode);
        std::filesystem::remove(recovery);
    }
}

TEST_F(RecoveryFilesOnLinux, HaveTheDocumentsOwner) {
    if (!isRoot()) GTEST_SKIP() << "only root can give a file away";
    chmod(document.c_str(), 0640);
    ASSERT_EQ(chown(document.c_str(), otherUser, otherUser), 0);
    ASSERT_EQ(write("secret").result, WriteResult::written);
    struct stat status{};
    ASSERT_EQ(stat(recovery.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, otherUser);
    EXPECT_EQ(status.st_gid, otherUser);
    EXPECT_EQ(modeOf(recovery), 0640U);
}

TEST_F(RecoveryFilesOnLinux, AreNarrowerThanADocumentWhoseOwnerTheyCannotHave) {
    if (!isRoot()) GTEST_SKIP() << "only root can give a file away";
    chmod(folder.path().c_str(), 0777);
    for (const auto& [ofDocument, ofRecovery] : {std::pair{0660U, 0600U}, {0666U, 0666U}, {0626U, 0622U}}) {
        chmod(document.c_str(), ofDocument);
        ASSERT_EQ(chown(document.c_str(), 0, 12345), 0);
        RegularFile file = RegularFile::open(document, RegularFile::Access::readAndWrite);
        {
            const AsOrdinaryUser another;
            ASSERT_EQ(writeRecoveryFile(document, file, "secret", std::nullopt).result, WriteResult::written);
        }
        EXPECT_EQ(modeOf(recovery), ofRecovery) << std::oct << ofDocument;
        std::filesystem::remove(recovery);
    }
}

namespace {
/// One entry of an access control list, as the kernel takes it.
struct Entry {
    std::uint16_t kind;
    std::uint16_t access;
    std::uint32_t user = UINT32_MAX;
};
constexpr std::uint16_t fileOwner = 1, namedUser = 2, fileGroup = 4, mask = 16, everybodyElse = 32;
}  // namespace

static std::vector<char> accessList(const std::vector<Entry>& entries) {
    std::vector<char> bytes{2, 0, 0, 0};  // the version
    for (const Entry& entry : entries) {
        const char* const begin = reinterpret_cast<const char*>(&entry);
        bytes.insert(bytes.end(), begin, begin + sizeof entry);
    }
    return bytes;
}

static const char* const listOfFile = "system.posix_acl_access";
static const char* const listOfNewFiles = "system.posix_acl_default";

TEST_F(RecoveryFilesOnLinux, HaveTheDocumentsAccessControlList) {
    const auto list =
        accessList({{fileOwner, 6}, {namedUser, 4, otherUser}, {fileGroup, 0}, {mask, 4}, {everybodyElse, 0}});
    if (setxattr(document.c_str(), listOfFile, list.data(), list.size(), 0) != 0) {
        GTEST_SKIP() << "the file system has no access control lists";
    }
    ASSERT_EQ(write("secret").result, WriteResult::written);
    std::vector<char> found(1000);
    const ssize_t size = getxattr(recovery.c_str(), listOfFile, found.data(), found.size());
    found.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
    EXPECT_EQ(found, list);
}

TEST_F(RecoveryFilesOnLinux, DoNotHaveTheListThatTheFolderGivesToNewFiles) {
    chmod(document.c_str(), 0644);
    const auto list =
        accessList({{fileOwner, 6}, {namedUser, 6, otherUser}, {fileGroup, 6}, {mask, 6}, {everybodyElse, 6}});
    if (setxattr(folder.path().c_str(), listOfNewFiles, list.data(), list.size(), 0) != 0) {
        GTEST_SKIP() << "the file system has no access control lists";
    }
    ASSERT_EQ(write("secret").result, WriteResult::written);
    EXPECT_LT(getxattr(recovery.c_str(), listOfFile, nullptr, 0), 0);
    EXPECT_EQ(errno, ENODATA);
    EXPECT_EQ(modeOf(recovery), 0644U);
}

TEST_F(RecoveryFilesOnLinux, DoNotFollowALinkOfTheirName) {
    const std::string elsewhere = folder.file("elsewhere");
    putBytes(elsewhere, "not ours");
    std::filesystem::create_symlink(elsewhere, incomplete);
    std::filesystem::create_symlink(elsewhere, recovery);
    EXPECT_TRUE(Documents().write(document, "new").success);
    EXPECT_EQ(bytesOf(elsewhere), "not ours");
    EXPECT_EQ(bytesOf(document), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(recovery));
}

TEST_F(RecoveryFilesOnLinux, AreDoneWithoutWhereTheNameWouldBeTooLong) {
    for (const char* text : {"first", "second"}) {
        const std::string longNamed = folder.file(std::string(250, 'n'));
        EXPECT_TRUE(Documents().write(longNamed, text).success);
        EXPECT_EQ(bytesOf(longNamed), text);
    }
}

TEST_F(RecoveryFilesOnLinux, SaveAnOldDocumentFromADiskWithoutRoom) {
    const FileSizeLimit limit(1000);
    const Outcome outcome = Documents().write(document, std::string(2000, 'x'));
    EXPECT_EQ(outcome.error, "file-write-failed");
    EXPECT_EQ(bytesOf(document), "old");
    EXPECT_FALSE(std::filesystem::exists(recovery));
    EXPECT_FALSE(std::filesystem::exists(incomplete));
}

class AnOddRecoveryFile : public RecoveryFilesOnLinux {
protected:
    void SetUp() override {
        putBytes(document, "new te");
        putBytes(recovery, "new text");
    }

    void expectThatNothingIsTouched() const {
        EXPECT_EQ(Documents().read(document).payload, "new te");
        EXPECT_EQ(bytesOf(document), "new te");
        struct stat status{};
        EXPECT_EQ(lstat(recovery.c_str(), &status), 0);
    }
};

TEST_F(AnOddRecoveryFile, IsNotFollowedWhenItIsALink) {
    std::filesystem::rename(recovery, folder.file("elsewhere"));
    std::filesystem::create_symlink(folder.file("elsewhere"), recovery);
    expectThatNothingIsTouched();
    EXPECT_EQ(bytesOf(folder.file("elsewhere")), "new text");
}

TEST_F(AnOddRecoveryFile, IsNotWaitedForWhenItIsAPipe) {
    std::filesystem::remove(recovery);
    ASSERT_EQ(mkfifo(recovery.c_str(), 0600), 0);
    expectThatNothingIsTouched();
}

TEST_F(AnOddRecoveryFile, IsNotUsedWhenItIsAnotherUsers) {
    if (!isRoot()) GTEST_SKIP() << "only root can give a file away";
    ASSERT_EQ(chown(recovery.c_str(), otherUser, otherUser), 0);
    expectThatNothingIsTouched();
    EXPECT_EQ(bytesOf(recovery), "new text");
}

TEST_F(AnOddRecoveryFile, StaysBesideADocumentThatCannotBeWritten) {
    chmod(document.c_str(), 0444);
    chmod(folder.path().c_str(), 0777);
    const AsOrdinaryUser user;
    expectThatNothingIsTouched();
    EXPECT_EQ(bytesOf(recovery), "new text");
}

TEST_F(AnOddRecoveryFile, IsFoundBesideTheFileThatALinkLeadsTo) {
    const std::string link = folder.file("link.words.tessary");
    std::filesystem::create_symlink("notes.words.tessary", link);
    EXPECT_EQ(Documents().read(link).payload, "new text");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(bytesOf(document), "new text");
    EXPECT_FALSE(std::filesystem::exists(recovery));
}

TEST_F(AnOddRecoveryFile, IsFoundBesideALinkToo) {
    const std::string link = folder.file("link.words.tessary");
    std::filesystem::create_symlink("notes.words.tessary", link);
    std::filesystem::rename(recovery, link + ".new-text");
    EXPECT_EQ(Documents().read(link).payload, "new text");
    EXPECT_EQ(bytesOf(document), "new text");
}
