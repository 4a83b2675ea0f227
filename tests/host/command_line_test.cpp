#include "app/command_line.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "bridge/text/native_path.h"
#include "temporary_folder.h"

static LaunchArgs parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "tessary");
    return parseCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

/// Makes a folder the current one for a test.
class ParseCommandLine : public testing::Test {
protected:
    void SetUp() override { std::filesystem::current_path(folder.path()); }
    void TearDown() override { std::filesystem::current_path(before); }
    std::filesystem::path before = std::filesystem::current_path();
    TemporaryFolder folder;
};

TEST_F(ParseCommandLine, AcceptsNoArgumentAtAll) {
    const LaunchArgs args = parse({});
    EXPECT_TRUE(args.ok);
    EXPECT_EQ(args.error, "");
    EXPECT_EQ(args.filePath, std::nullopt);
}

TEST_F(ParseCommandLine, MakesARelativePathAbsolute) {
    putBytes(folder.file("a.words.tessary"), "{}");
    const LaunchArgs args = parse({"a.words.tessary"});
    EXPECT_TRUE(args.ok);
    EXPECT_EQ(args.error, "");
    EXPECT_EQ(args.filePath, narrowFromPath(std::filesystem::current_path() / "a.words.tessary"));
}

TEST_F(ParseCommandLine, KeepsAnAbsolutePathAsItIs) {
    const std::string path = narrowFromPath(std::filesystem::current_path() / "b.json");
    putBytes(path, "{}");
    EXPECT_EQ(parse({path.c_str()}).filePath, path);
}

TEST_F(ParseCommandLine, RepeatsAMissingFileNameAsTyped) {
    const LaunchArgs args = parse({"./gone.tessary"});
    EXPECT_FALSE(args.ok);
    EXPECT_EQ(args.error, "File not found: ./gone.tessary");
    EXPECT_EQ(args.filePath, std::nullopt);
}

TEST_F(ParseCommandLine, AcceptsAFolder) {
    const LaunchArgs args = parse({"."});
    EXPECT_TRUE(args.ok);
    EXPECT_EQ(args.filePath, narrowFromPath(std::filesystem::absolute(".")));
}

TEST_F(ParseCommandLine, AnswersTwoNamesWithTheReasonAndTheUsage) {
    const LaunchArgs args = parse({"one", "two"});
    EXPECT_FALSE(args.ok);
    EXPECT_EQ(args.filePath, std::nullopt);
    EXPECT_NE(args.error.find("\n\nUsage: tessary"), std::string::npos) << args.error;
    EXPECT_NE(args.error.find("Positional arguments:"), std::string::npos);
    EXPECT_NE(args.error.find("Path to file to open"), std::string::npos);
    EXPECT_NE(args.error.find("shows help message and exits"), std::string::npos);
    EXPECT_NE(args.error.find("prints version information and exits"), std::string::npos);
    EXPECT_GT(args.error.find("\n\n"), 0u);
}

TEST_F(ParseCommandLine, AnswersAnUnknownOptionWithTheUsage) {
    const LaunchArgs args = parse({"--frobnicate"});
    EXPECT_FALSE(args.ok);
    EXPECT_NE(args.error.find("--frobnicate"), std::string::npos);
    EXPECT_NE(args.error.find("\n\nUsage: tessary"), std::string::npos);
}

static std::string printedBefore(std::initializer_list<const char*> arguments) {
    testing::internal::CaptureStdout();
    EXPECT_EXIT(parse(arguments), testing::ExitedWithCode(0), "");
    return testing::internal::GetCapturedStdout();
}

TEST_F(ParseCommandLine, EndsWithCodeZeroAfterHelpAndVersion) {
    for (const char* option : {"--help", "-h", "--version", "-v"}) printedBefore({option});
}
