#include "bridge/file_dialogs.h"

#include <gtest/gtest.h>

#include "bridge/dialog_arguments.h"

using std::string_literals::operator""s;

TEST(FilterList, ShowsAllFilesTwiceByDefault) {
    EXPECT_EQ(filterList({}), "All Files (*.*)\0*.*\0All Files (*.*)\0*.*\0"s);
}

TEST(FilterList, PutsTheAskedForFilterFirst) {
    EXPECT_EQ(filterList({"JSON", "*.json;*.txt"}), "JSON (*.json;*.txt)\0*.json;*.txt\0All Files (*.*)\0*.*\0"s);
}

TEST(FilterList, OffersAllFilesAloneWithoutANameOrAPattern) {
    EXPECT_EQ(filterList({"", "*.json"}), "All Files (*.*)\0*.*\0"s);
    EXPECT_EQ(filterList({"JSON", ""}), "All Files (*.*)\0*.*\0"s);
}

TEST(SplitPatterns, CutsAtSemicolons) {
    EXPECT_EQ(splitPatterns("*.words.tessary;*.tessary"), (std::vector<std::string>{"*.words.tessary", "*.tessary"}));
    EXPECT_EQ(splitPatterns(";*.a;;"), (std::vector<std::string>{"*.a"}));
    EXPECT_TRUE(splitPatterns("").empty());
}

struct ExtensionCase {
    const char* path;
    const char* extension;
    const char* result;
};

class DefaultExtension : public testing::TestWithParam<ExtensionCase> {};

TEST_P(DefaultExtension, IsAddedToANameWithoutOne) {
    EXPECT_EQ(withDefaultExtension(GetParam().path, GetParam().extension), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    WithDefaultExtension, DefaultExtension,
    testing::Values(ExtensionCase{"/a/mine", "words.tessary", "/a/mine.words.tessary"},
                    ExtensionCase{"/a.b/mine", "json", "/a.b/mine.json"},
                    ExtensionCase{"/a/mine.txt", "json", "/a/mine.txt"},
                    ExtensionCase{"/a/mine.words.tessary", "words.tessary", "/a/mine.words.tessary"},
                    ExtensionCase{"mine", "", "mine"}, ExtensionCase{"mine", "json", "mine.json"}));

TEST(OpenDialogArguments, KeepsDefaultsForWhatIsMissing) {
    for (const char* request : {"", "[]", "not json", "{}", "7", "[null, null]", "[1, {}]"}) {
        const FileFilter filter = openDialogArguments(request);
        EXPECT_EQ(filter.name, "All Files") << request;
        EXPECT_EQ(filter.pattern, "*.*") << request;
    }
}

TEST(OpenDialogArguments, TakesAPatternWithoutAName) {
    const FileFilter filter = openDialogArguments(R"([null, "*.json"])");
    EXPECT_EQ(filter.name, "All Files");
    EXPECT_EQ(filter.pattern, "*.json");
}

TEST(OpenDialogArguments, TakesEmptyTexts) {
    const FileFilter filter = openDialogArguments(R"(["", ""])");
    EXPECT_EQ(filter.name, "");
    EXPECT_EQ(filter.pattern, "");
}

TEST(SaveDialogArguments, ReadsAllFour) {
    const SaveRequest request = saveDialogArguments(
        R"(["Übung.words.tessary", "Tessary Files", "*.words.tessary;*.tessary", "words.tessary"])");
    EXPECT_EQ(request.defaultName, "Übung.words.tessary");
    EXPECT_EQ(request.filter.name, "Tessary Files");
    EXPECT_EQ(request.filter.pattern, "*.words.tessary;*.tessary");
    EXPECT_EQ(request.defaultExtension, "words.tessary");
}

TEST(SaveDialogArguments, KeepsDefaultsForWhatIsNoString) {
    const SaveRequest request = saveDialogArguments(R"([7, null, [], "json"])");
    EXPECT_EQ(request.defaultName, "");
    EXPECT_EQ(request.filter.name, "All Files");
    EXPECT_EQ(request.filter.pattern, "*.*");
    EXPECT_EQ(request.defaultExtension, "json");
}
