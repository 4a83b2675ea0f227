#include <windows.h>
// windows.h must come first
#include <gtest/gtest.h>

#include <string>

#include "access_list_windows.h"
#include "bridge/files/rescue_folder.h"
#include "temporary_folder.h"

TEST(ARescueFolderOnWindows, IsInTheLocalApplicationData) {
    wchar_t before[MAX_PATH] = {};
    GetEnvironmentVariableW(L"LOCALAPPDATA", before, MAX_PATH);
    SetEnvironmentVariableW(L"LOCALAPPDATA", L"C:\\Users\\me\\AppData\\Local");
    EXPECT_EQ(userRescueFolder(), L"C:\\Users\\me\\AppData\\Local\\Tessary");
    SetEnvironmentVariableW(L"LOCALAPPDATA", L"relative");
    EXPECT_EQ(userRescueFolder(), L"");
    SetEnvironmentVariableW(L"LOCALAPPDATA", nullptr);
    EXPECT_EQ(userRescueFolder(), L"");
    SetEnvironmentVariableW(L"LOCALAPPDATA", before);
}

TEST(ARescueFolderOnWindows, GrantsAccessToOneUser) {
    const TemporaryFolder outside;
    const RescueFolder folder(outside.path() / "tessary");
    ASSERT_TRUE(folder.write(L"Übung 漢字", "secret"));
    const std::wstring rules = accessOf(folder.path());
    EXPECT_EQ(rules.find(L";WD)"), std::wstring::npos) << "everyone";
    EXPECT_EQ(rules.find(L";BU)"), std::wstring::npos) << "the group of users";
    ASSERT_EQ(folder.list().size(), 1U);
    EXPECT_EQ(folder.list()[0].path.filename(), L"Übung 漢字");
}

TEST(ARescueFolderOnWindows, IsClosedToOthersBeforeItIsUsed) {
    const TemporaryFolder outside;
    const RescueFolder folder(outside.path() / "tessary");
    std::filesystem::create_directory(folder.path());
    ASSERT_TRUE(folder.write("a", "secret"));
    const std::wstring rules = accessOf(folder.path());
    EXPECT_EQ(rules.find(L";WD)"), std::wstring::npos) << "everyone";
}
