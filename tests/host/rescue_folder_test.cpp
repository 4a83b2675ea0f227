#include "bridge/files/rescue_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "temporary_folder.h"

class ARescueFolder : public testing::Test {
protected:
    TemporaryFolder outside;
    RescueFolder folder{outside.path() / "state" / "tessary"};

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const RescuedText& text : folder.list()) found.push_back(text.path.filename().string());
        return found;
    }
};

TEST_F(ARescueFolder, IsNotMadeBeforeItIsOfUse) {
    EXPECT_TRUE(folder.list().empty());
    folder.remove("a");
    EXPECT_FALSE(std::filesystem::exists(folder.path()));
}

TEST_F(ARescueFolder, KeepsTextsUntilTheyAreRemoved) {
    const auto before = std::chrono::system_clock::now() - std::chrono::seconds(5);
    ASSERT_EQ(folder.write("b", "second"), folder.path() / "b");
    ASSERT_EQ(folder.write("a", "first\nline"), folder.path() / "a");
    EXPECT_EQ(names(), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(bytesOf((folder.path() / "b").string()), "second");
    EXPECT_GT(folder.list()[0].written, before);
    EXPECT_LT(folder.list()[0].written, before + std::chrono::minutes(5));
    folder.remove("b");
    EXPECT_EQ(names(), std::vector<std::string>{"a"});
}

TEST_F(ARescueFolder, ReplacesATextByItsSuccessor) {
    ASSERT_TRUE(folder.write("a", "a long first text"));
    ASSERT_TRUE(folder.write("a", "second"));
    EXPECT_EQ(bytesOf((folder.path() / "a").string()), "second");
    EXPECT_EQ(names(), std::vector<std::string>{"a"});
}

TEST_F(ARescueFolder, GivesANewTextANameOfItsOwn) {
    EXPECT_EQ(folder.writeNew("mine", ".tessary", "1"), folder.path() / "mine.tessary");
    EXPECT_EQ(folder.writeNew("mine", ".tessary", "2"), folder.path() / "mine 2.tessary");
    EXPECT_EQ(folder.writeNew("mine", ".tessary", "3"), folder.path() / "mine 3.tessary");
    EXPECT_EQ(bytesOf((folder.path() / "mine.tessary").string()), "1");
}

TEST_F(ARescueFolder, ForgetsWhatAWriteThatWasCutOffLeft) {
    ASSERT_TRUE(folder.write("a", "whole"));
    putBytes((folder.path() / "a.incomplete").string(), "who");
    EXPECT_EQ(names(), std::vector<std::string>{"a"});
    folder.remove("a");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(ARescueFolder, TakesNamesAloneAndNoPaths) {
    for (const std::string name : {"", ".", "..", "../a", "b/a", "a.incomplete"}) {
        EXPECT_EQ(folder.write(name, "text"), std::nullopt) << name;
    }
    EXPECT_EQ(folder.write(outside.path() / "a", "text"), std::nullopt);
    ASSERT_TRUE(folder.write("here", "text"));
    putBytes(outside.file("a"), "kept");
    folder.remove("../../a");
    EXPECT_EQ(bytesOf(outside.file("a")), "kept");
}

TEST_F(ARescueFolder, ListsFilesOnly) {
    ASSERT_TRUE(folder.write("a", "text"));
    std::filesystem::create_directory(folder.path() / "folder");
    EXPECT_EQ(names(), std::vector<std::string>{"a"});
}

TEST_F(ARescueFolder, IsDoneWithoutWhereAFileHasItsName) {
    std::filesystem::create_directory(outside.path() / "state");
    putBytes(folder.path().string(), "a file");
    EXPECT_EQ(folder.write("a", "text"), std::nullopt);
    EXPECT_TRUE(folder.list().empty());
    EXPECT_EQ(bytesOf(folder.path().string()), "a file");
}

TEST(NoRescueFolder, TakesNothing) {
    const RescueFolder none{std::filesystem::path()};
    EXPECT_EQ(none.write("a", "text"), std::nullopt);
    EXPECT_TRUE(none.list().empty());
}
