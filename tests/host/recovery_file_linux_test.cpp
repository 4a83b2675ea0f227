#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include "bridge/files/file_io.h"
#include "bridge/files/recovery_file.h"
#include "document_with_recovery_file.h"

namespace {
/// A disk that takes no file longer than so many bytes.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : ignored_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, ignored_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
    void (*ignored_)(int);
};
}  // namespace

class RecoveryFilesOnLinux : public DocumentWithRecoveryFile {};

TEST_F(RecoveryFilesOnLinux, AreReadByTheirOwnerOnly) {
    putBytes(document, "old");
    ASSERT_EQ(writeRecoveryFile(document, "secret"), RecoveryFile::written);
    struct stat status{};
    ASSERT_EQ(stat(recovery.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(RecoveryFilesOnLinux, DoNotFollowALinkOfTheirName) {
    putBytes(document, "old");
    const std::string elsewhere = folder.file("elsewhere");
    putBytes(elsewhere, "not ours");
    std::filesystem::create_symlink(elsewhere, incomplete);
    std::filesystem::create_symlink(elsewhere, recovery);
    EXPECT_TRUE(writeTextFile(document, "new").success);
    EXPECT_EQ(bytesOf(elsewhere), "not ours");
    EXPECT_EQ(bytesOf(document), "new");
}

TEST_F(RecoveryFilesOnLinux, AreDoneWithoutWhereTheNameWouldBeTooLong) {
    const std::string longNamed = folder.file(std::string(250, 'n'));
    putBytes(longNamed, "old");
    EXPECT_EQ(writeRecoveryFile(longNamed, "new"), RecoveryFile::impossible);
    EXPECT_TRUE(writeTextFile(longNamed, "new").success);
    EXPECT_EQ(bytesOf(longNamed), "new");
}

TEST_F(RecoveryFilesOnLinux, SaveAnOldDocumentFromADiskWithoutRoom) {
    putBytes(document, "old");
    const FileSizeLimit limit(1000);
    const Outcome outcome = writeTextFile(document, std::string(2000, 'x'));
    EXPECT_EQ(outcome.error, "file-write-failed");
    EXPECT_EQ(bytesOf(document), "old");
    EXPECT_FALSE(std::filesystem::exists(recovery));
    EXPECT_FALSE(std::filesystem::exists(incomplete));
}
