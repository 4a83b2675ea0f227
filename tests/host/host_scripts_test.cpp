#include "app/host_scripts.h"

#include <gtest/gtest.h>

#include "captured_output.h"
#include "recording_view.h"

TEST(HostInfoScript, DescribesAnOrdinaryProgram) {
    EXPECT_EQ(hostInfoScript(std::nullopt),
              "\n            window.tessary = {\n                os: {\n                    platform: 'windows',\n"
              "                    arch: 'x64'\n                },\n                backend: {\n"
              "                    implementation: 'cpp',\n                    msPackageName: null\n"
              "                }\n            };\n        ");
}

TEST(HostInfoScript, NamesTheStorePackage) {
    const std::string script = hostInfoScript("Tessary_1.5.4.0_x64__abc");
    EXPECT_NE(script.find("msPackageName: 'Tessary_1.5.4.0_x64__abc'\n"), std::string::npos);
}

TEST(LaunchArgsScript, SaysNullTwiceWithoutArguments) {
    EXPECT_EQ(launchArgsScript({}),
              "\n            window.tessary.args = {\n                error: null,\n                filePath: null\n"
              "            };\n        ");
}

TEST(LaunchArgsScript, EscapesBackslashesAndQuotesOfAPath) {
    const std::string script = launchArgsScript({true, "", R"(C:\Docs\a'b.json)"});
    EXPECT_NE(script.find(R"(filePath: 'C:\\Docs\\a\'b.json')"), std::string::npos);
    EXPECT_NE(script.find("error: null,"), std::string::npos);
}

TEST(LaunchArgsScript, CarriesTheErrorOfAMissingFile) {
    const std::string script = launchArgsScript({false, "File not found: x", std::nullopt});
    EXPECT_NE(script.find("error: 'File not found: x',"), std::string::npos);
    EXPECT_NE(script.find("filePath: null"), std::string::npos);
}

TEST(LaunchArgsScript, LeavesLineBreaksInTheLiteral) {
    EXPECT_NE(launchArgsScript({false, "one\n\ntwo\r", std::nullopt}).find("'one\n\ntwo\r'"), std::string::npos);
}

TEST(EscapeJsSingleQuoted, ChangesNothingElse) {
    const std::string others = "\"\t\n\r\x01\x7F\xC3\xA4/`${}</script>";
    EXPECT_EQ(escapeJsSingleQuoted(others), others);
    EXPECT_EQ(escapeJsSingleQuoted(R"(\')"), R"(\\\')");
    EXPECT_EQ(escapeJsSingleQuoted(""), "");
}

TEST(ToJsStringOrNull, QuotesAnEmptyText) {
    EXPECT_EQ(toJsStringOrNull(""), "''");
    EXPECT_EQ(toJsStringOrNull(std::nullopt), "null");
}

TEST(CurrentPackageFullName, IsNothingForAnUnpackagedProgram) { EXPECT_EQ(currentPackageFullName(), std::nullopt); }

static std::string loggedFor(const LaunchArgs& args) {
    const CapturedOutput output;
    RecordingView view;
    injectLaunchArgs(view, args);
    EXPECT_EQ(view.scripts, std::vector{launchArgsScript(args)});
    return output.text();
}

TEST(InjectLaunchArgs, LogsTheFileOrTheErrorOrNothing) {
    EXPECT_EQ(loggedFor({}), "");
    EXPECT_EQ(loggedFor({true, "", "/a'b"}), "[Backend] Opening file: /a'b\n");
    EXPECT_EQ(loggedFor({false, "one\n\ntwo", std::nullopt}), "[Backend Error] one\n\ntwo\n");
}

TEST(InjectHostInfo, AddsTheHostScript) {
    RecordingView view;
    injectHostInfo(view);
    EXPECT_EQ(view.scripts, std::vector{hostInfoScript(currentPackageFullName())});
}
