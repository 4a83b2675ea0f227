#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "bridge/files/rescue_folder.h"
#include "temporary_folder.h"

namespace {
/// A variable of the environment that is another one during a test.
class Variable {
public:
    Variable(const char* name, const char* value) : name_(name) {
        if (const char* before = std::getenv(name)) before_ = before;
        value == nullptr ? unsetenv(name) : setenv(name, value, 1);
    }
    ~Variable() { before_ ? setenv(name_, before_->c_str(), 1) : unsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    std::optional<std::string> before_;
};
}  // namespace

static mode_t accessOf(const std::filesystem::path& path) {
    struct stat status{};
    return lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

TEST(ARescueFolderOnLinux, IsInTheStateFolder) {
    const Variable state("XDG_STATE_HOME", "/some/state");
    EXPECT_EQ(userRescueFolder(), "/some/state/tessary");
}

TEST(ARescueFolderOnLinux, IsInTheHomeFolderWhenNoStateFolderIsNamed) {
    const Variable home("HOME", "/home/me");
    for (const char* nothing : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Variable state("XDG_STATE_HOME", nothing);
        EXPECT_EQ(userRescueFolder(), "/home/me/.local/state/tessary");
    }
}

TEST(ARescueFolderOnLinux, IsReadByItsOwnerOnly) {
    const TemporaryFolder outside;
    const mode_t before = umask(0);
    const RescueFolder folder(outside.path() / "state/tessary");
    EXPECT_TRUE(folder.write("a", "secret"));
    umask(before);
    EXPECT_EQ(accessOf(folder.path()), 0700U);
    EXPECT_EQ(accessOf(folder.path() / "a"), 0600U);
    EXPECT_EQ(accessOf(outside.path() / "state"), 0700U);
}

TEST(ARescueFolderOnLinux, IsClosedToOthersBeforeItIsUsed) {
    const TemporaryFolder outside;
    const RescueFolder folder(outside.path() / "tessary");
    std::filesystem::create_directory(folder.path());
    chmod(folder.path().c_str(), 0777);
    EXPECT_TRUE(folder.write("a", "secret"));
    EXPECT_EQ(accessOf(folder.path()), 0700U);
}

TEST(ARescueFolderOnLinux, IsNotALinkToAnotherPlace) {
    const TemporaryFolder outside;
    const RescueFolder folder(outside.path() / "tessary");
    std::filesystem::create_directory(outside.path() / "elsewhere");
    std::filesystem::create_symlink(outside.path() / "elsewhere", folder.path());
    EXPECT_EQ(folder.write("a", "secret"), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_empty(outside.path() / "elsewhere"));
}

TEST(ARescueFolderOnLinux, IsNotAnotherUsers) {
    if (geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
    const TemporaryFolder outside;
    const RescueFolder folder(outside.path() / "tessary");
    std::filesystem::create_directory(folder.path());
    putBytes((folder.path() / "theirs").string(), "text");
    ASSERT_EQ(chown(folder.path().c_str(), 65534, 65534), 0);
    EXPECT_EQ(folder.write("a", "secret"), std::nullopt);
    EXPECT_TRUE(folder.list().empty());
    folder.remove("theirs");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "theirs"));
}

TEST(ARescueFolderOnLinux, DoesNotWriteThroughLinksInIt) {
    const TemporaryFolder outside;
    const RescueFolder folder(outside.path() / "tessary");
    ASSERT_TRUE(folder.write("first", "text"));
    putBytes(outside.file("elsewhere"), "kept");
    std::filesystem::create_symlink(outside.file("elsewhere"), folder.path() / "a");
    std::filesystem::create_symlink(outside.file("elsewhere"), folder.path() / "a.incomplete");
    EXPECT_TRUE(folder.write("a", "text"));
    EXPECT_EQ(bytesOf(outside.file("elsewhere")), "kept");
    EXPECT_EQ(bytesOf((folder.path() / "a").string()), "text");
}
