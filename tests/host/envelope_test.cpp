#include "bridge/envelope.h"

#include <gtest/gtest.h>

#include "bridge/text/json.h"

TEST(Envelope, LeavesEmptyMembersOut) {
    EXPECT_EQ(envelope(succeeded(), "data"), R"({ "success": true })");
    EXPECT_EQ(envelope(failed("user-cancelled"), "path"), R"({ "success": false, "error": "user-cancelled" })");
}

TEST(Envelope, KeepsItsMembersInOrder) {
    EXPECT_EQ(envelope({true, "text", "code"}, "data"), R"({ "success": true, "data": "text", "error": "code" })");
    EXPECT_EQ(envelope(succeeded("p"), "path"), R"({ "success": true, "path": "p" })");
}

TEST(Envelope, EndsThePayloadAtItsFirstNul) {
    EXPECT_EQ(envelope(succeeded(std::string("ab\0cd", 5)), "data"), R"({ "success": true, "data": "ab" })");
}

TEST(Envelope, LeavesAPayloadOutThatBeginsWithANul) {
    EXPECT_EQ(envelope(succeeded(std::string("\0ab", 3)), "data"), R"({ "success": true })");
}

TEST(Envelope, KeepsNonAsciiPaths) {
    EXPECT_EQ(envelope(succeeded("Übung.tessary"), "path"), R"({ "success": true, "path": "\u00dcbung.tessary" })");
}

TEST(Envelope, EscapesWhatJsonDemands) {
    const std::string text = envelope(succeeded("\"\\\n\t\x01"), "data");
    const Json parsed(json_tokener_parse(text.c_str()));
    json_object* data = nullptr;
    ASSERT_TRUE(json_object_object_get_ex(parsed.get(), "data", &data));
    EXPECT_STREQ(json_object_get_string(data), "\"\\\n\t\x01");
}

TEST(JsonString, IsQuotedAndAscii) { EXPECT_EQ(jsonString("a\"ß"), R"("a\"\u00df")"); }
