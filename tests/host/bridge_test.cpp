#include "bridge/bridge.h"

#include <gtest/gtest.h>

#include "bridge/envelope.h"
#include "bridge/files/documents.h"
#include "recording_view.h"
#include "temporary_folder.h"

static const std::string refusedArguments = R"({ "success": false, "error": "invalid-arguments" })";

TEST(Bridge, BindsFiveFunctionsInOrder) {
    RecordingView view;
    Documents documents;
    bindFileFunctions(view, documents);
    bindLinkOpener(view);
    EXPECT_EQ(view.names, (std::vector<std::string>{"showOpenDialog", "showSaveDialog", "readFile", "writeFile",
                                                    "openExternalUrl"}));
}

TEST(ReadFile, RefusesWhatIsNoPath) {
    Documents documents;
    for (const char* request :
         {"", "[]", "[null]", "[7]", "[[\"a\"]]", "{\"0\": \"a\"}", "\"a\"", "not json", "null"}) {
        EXPECT_EQ(readFile(request, documents), refusedArguments) << request;
    }
}

TEST(WriteFile, RefusesWhatIsNoPathAndText) {
    Documents documents;
    for (const char* request : {"", "[]", "[\"a\"]", "[\"a\", null]", "[null, \"text\"]", "[\"a\", 7]", "{}", "["}) {
        EXPECT_EQ(writeFile(request, documents), refusedArguments) << request;
    }
}

class BridgeFiles : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string path = folder.file("file");
    std::string quoted = jsonString(path);
    Documents documents;
};

TEST_F(BridgeFiles, AnswersTheTextOfAFile) {
    putBytes(path, "héllo");
    EXPECT_EQ(readFile("[" + quoted + ", \"ignored\"]", documents), R"({ "success": true, "data": "h\u00e9llo" })");
}

TEST_F(BridgeFiles, AnswersSuccessAloneForAnEmptyFile) {
    putBytes(path, "");
    EXPECT_EQ(readFile("[" + quoted + "]", documents), R"({ "success": true })");
}

TEST_F(BridgeFiles, DeliversAFileUpToItsFirstNul) {
    putBytes(path, std::string("ab\0cd", 5));
    EXPECT_EQ(readFile("[" + quoted + "]", documents), R"({ "success": true, "data": "ab" })");
}

TEST_F(BridgeFiles, WritesUpToTheFirstNul) {
    EXPECT_EQ(writeFile("[" + quoted + R"(, "ab\u0000cd", 7])", documents), R"({ "success": true })");
    EXPECT_EQ(bytesOf(path), "ab");
}

TEST_F(BridgeFiles, EndsAPathAtItsFirstNul) {
    putBytes(path, "text");
    const std::string withNul = quoted.substr(0, quoted.size() - 1) + R"(\u0000.gone")";
    EXPECT_EQ(readFile("[" + withNul + "]", documents), R"({ "success": true, "data": "text" })");
}

TEST_F(BridgeFiles, ReportsWhatCouldNotBeOpened) {
    EXPECT_EQ(readFile("[" + quoted + "]", documents), R"({ "success": false, "error": "file-not-found" })");
    const std::string deeper = jsonString(path + "/deeper");
    EXPECT_EQ(writeFile("[" + deeper + ", \"\"]", documents), R"({ "success": false, "error": "file-write-failed" })");
}

TEST_F(BridgeFiles, CarriesFiftyMegabytes) {
    std::string text;
    while (text.size() < 50'000'000) text += "0123456789 lines of text, é\n";
    EXPECT_EQ(writeFile("[" + quoted + "," + jsonString(text) + "]", documents), R"({ "success": true })");
    const std::string answer = readFile("[" + quoted + "]", documents);
    EXPECT_EQ(answer, "{ \"success\": true, \"data\": " + jsonString(text) + " }");
}
