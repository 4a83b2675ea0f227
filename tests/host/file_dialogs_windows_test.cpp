#include "bridge/file_dialogs_windows.h"

#include <gtest/gtest.h>

#include "bridge/text/utf16_windows.h"

using std::string_literals::operator""s;

TEST(FilterString, IsTheListUnitByUnit) {
    EXPECT_EQ(filterString({}), L"All Files (*.*)\0*.*\0All Files (*.*)\0*.*\0"s);
    EXPECT_EQ(filterString({"JSON", "*.json;*.txt"}), L"JSON (*.json;*.txt)\0*.json;*.txt\0All Files (*.*)\0*.*\0"s);
    EXPECT_EQ(filterString({"", "*.json"}), L"All Files (*.*)\0*.*\0"s);
    EXPECT_EQ(filterString({"JSON", ""}), L"All Files (*.*)\0*.*\0"s);
}

TEST(FilterString, EndsInTwoNuls) {
    const std::wstring filters = filterString({});
    EXPECT_EQ(filters.back(), L'\0');
    EXPECT_EQ(filters.c_str()[filters.size()], L'\0');
}

TEST(FilterString, KeepsCharactersOutsideTheCodePage) {
    EXPECT_EQ(filterString({"漢\xF0\x9F\x98\x80", "*.x"}), L"漢\xD83D\xDE00 (*.x)\0*.x\0All Files (*.*)\0*.*\0"s);
}

static OPENFILENAMEW expectedRequest(const std::wstring& filters, FileNameBuffer& name, DWORD flags) {
    OPENFILENAMEW expected{};
    expected.lStructSize = sizeof(OPENFILENAMEW);
    expected.lpstrFilter = filters.c_str();
    expected.nFilterIndex = 1;
    expected.lpstrFile = name.data();
    expected.nMaxFile = 260;
    expected.Flags = flags;
    return expected;
}

TEST(OpenDialogRequest, HasTheseMembersAndNoOthers) {
    const std::wstring filters = filterString({});
    FileNameBuffer name{};
    const OPENFILENAMEW request = openDialogRequest(filters, name);
    const OPENFILENAMEW expected = expectedRequest(filters, name, 0x1808);
    EXPECT_EQ(memcmp(&request, &expected, sizeof request), 0);
}

TEST(SaveDialogRequest, HasTheseMembersAndNoOthers) {
    const std::wstring filters = filterString({});
    const std::wstring extension = L"words.tessary";
    FileNameBuffer name = preFilledName("Untitled.words.tessary");
    const OPENFILENAMEW request = saveDialogRequest(filters, name, extension);
    OPENFILENAMEW expected = expectedRequest(filters, name, 0x080A);
    expected.lpstrDefExt = extension.c_str();
    EXPECT_EQ(memcmp(&request, &expected, sizeof request), 0);
    EXPECT_STREQ(request.lpstrFile, L"Untitled.words.tessary");
}

TEST(SaveDialogRequest, HasNoDefaultExtensionWhenItIsEmpty) {
    FileNameBuffer name{};
    EXPECT_EQ(saveDialogRequest(L"", name, L"").lpstrDefExt, nullptr);
}

TEST(PreFilledName, TakesNamesUpToTheBuffer) {
    EXPECT_STREQ(preFilledName("Übung 漢字").data(), L"Übung 漢字");
    EXPECT_STREQ(preFilledName(std::string(259, 'n')).data(), std::wstring(259, L'n').c_str());
}

TEST(PreFilledName, IsEmptyWhenTheNameDoesNotFit) {
    EXPECT_STREQ(preFilledName(std::string(260, 'n')).data(), L"");
    EXPECT_STREQ(preFilledName("").data(), L"");
}

TEST(DialogCalls, AreHeldBackByTheWebView) { EXPECT_FALSE(dialogsAreReentrant()); }

TEST(Utf16, GoesBothWays) {
    EXPECT_EQ(utf16FromUtf8("é漢\xF0\x9F\x98\x80"), L"é漢\xD83D\xDE00");
    EXPECT_EQ(utf8FromUtf16(L"é漢\xD83D\xDE00"), "é漢\xF0\x9F\x98\x80");
    EXPECT_EQ(utf16FromUtf8(""), L"");
    EXPECT_EQ(utf8FromUtf16(L""), "");
    EXPECT_EQ(utf16FromUtf8("a\0b"s), L"a\0b"s);
}
