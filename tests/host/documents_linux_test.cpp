#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "bridge/files/documents.h"
#include "file_size_limit.h"
#include "other_user_linux.h"
#include "temporary_folder.h"

class DocumentsOnLinux : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string path = folder.file("document.words.tessary");

    [[nodiscard]] struct stat status() const {
        struct stat status{};
        EXPECT_EQ(lstat(path.c_str(), &status), 0);
        return status;
    }
    void save(const std::string& name) const {
        EXPECT_TRUE(Documents().write(name, "new text").success);
        EXPECT_EQ(bytesOf(name), "new text");
    }
};

TEST_F(DocumentsOnLinux, LeaveLineEndsAlone) {
    EXPECT_TRUE(Documents().write(path, "a\nb\r\n").success);
    EXPECT_EQ(bytesOf(path), "a\nb\r\n");
    EXPECT_EQ(Documents().read(path).payload, "a\nb\r\n");
}

TEST_F(DocumentsOnLinux, MayHaveUtf8Names) {
    path = folder.file("Übung 漢字");
    save(path);
    EXPECT_EQ(Documents().read(path).payload, "new text");
}

TEST_F(DocumentsOnLinux, DoNotNoticeAFullDisk) {
    const FileSizeLimit limit(1000);
    EXPECT_TRUE(Documents().write(path, std::string(100'000, 'x')).success);
    EXPECT_EQ(bytesOf(path), std::string(1000, 'x'));
}

TEST_F(DocumentsOnLinux, AreNoPipesAndNoDevices) {
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    for (const std::string& odd : {path, std::string("/dev/null"), std::string("/dev/full")}) {
        EXPECT_EQ(Documents().read(odd).error, "file-not-found") << odd;
        EXPECT_EQ(Documents().write(odd, "text").error, "file-write-failed") << odd;
    }
}

TEST_F(DocumentsOnLinux, KeepTheirPermissions) {
    putBytes(path, "old");
    for (const mode_t mode : {0600U, 0640U, 0664U, 0666U, 0755U}) {
        chmod(path.c_str(), mode);
        save(path);
        EXPECT_EQ(status().st_mode & 07777U, mode);
    }
}

TEST_F(DocumentsOnLinux, KeepTheirOwner) {
    if (!isRoot()) GTEST_SKIP() << "only root can give a file away";
    putBytes(path, "old");
    ASSERT_EQ(chown(path.c_str(), otherUser, 12345), 0);
    save(path);
    EXPECT_EQ(status().st_uid, otherUser);
    EXPECT_EQ(status().st_gid, 12345U);
}

TEST_F(DocumentsOnLinux, KeepTheirExtendedAttributes) {
    putBytes(path, "old");
    if (setxattr(path.c_str(), "user.origin", "a note", 6, 0) != 0) {
        GTEST_SKIP() << "the file system has no extended attributes";
    }
    save(path);
    char value[10] = {};
    EXPECT_EQ(getxattr(path.c_str(), "user.origin", value, sizeof value), 6);
    EXPECT_STREQ(value, "a note");
}

TEST_F(DocumentsOnLinux, KeepTheirSymbolicLinks) {
    putBytes(path, "old");
    const std::string link = folder.file("link");
    std::filesystem::create_symlink("document.words.tessary", link);
    save(link);
    EXPECT_EQ(std::filesystem::read_symlink(link), "document.words.tessary");
    EXPECT_EQ(bytesOf(path), "new text");
}

TEST_F(DocumentsOnLinux, KeepTheirHardLinks) {
    putBytes(path, "old");
    const std::string link = folder.file("link");
    std::filesystem::create_hard_link(path, link);
    const ino_t before = status().st_ino;
    save(link);
    EXPECT_EQ(status().st_ino, before);
    EXPECT_EQ(status().st_nlink, 2U);
    EXPECT_EQ(bytesOf(path), "new text");
}

TEST_F(DocumentsOnLinux, AreMadeWhereALinkLeads) {
    const std::string link = folder.file("link");
    std::filesystem::create_symlink("document.words.tessary", link);
    save(link);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(bytesOf(path), "new text");
}

TEST_F(DocumentsOnLinux, AreMadeWithThePermissionsOfOrdinaryNewFiles) {
    const mode_t before = umask(027);
    save(path);
    umask(before);
    EXPECT_EQ(status().st_mode & 07777U, 0640U);
}

TEST_F(DocumentsOnLinux, AreSavedWhileAnotherProgramHoldsTheFolder) {
    putBytes(path, "old");
    const int opened = open(folder.path().c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(flock(opened, LOCK_EX | LOCK_NB), 0);
    save(path);
    save(folder.file("new one"));
    close(opened);
}
