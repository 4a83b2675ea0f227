#include "bridge/text/utf8.h"

#include <gtest/gtest.h>

struct Utf8Case {
    const char* name;
    std::string bytes;
    std::string wellFormed;
    std::string ascii;
};

class Utf8 : public testing::TestWithParam<Utf8Case> {};

TEST_P(Utf8, IsRepairedAndEscaped) {
    EXPECT_EQ(wellFormedUtf8(GetParam().bytes), GetParam().wellFormed);
    EXPECT_EQ(asciiJson(GetParam().bytes), GetParam().ascii);
}

static const std::string bad = "\xEF\xBF\xBD";

INSTANTIATE_TEST_SUITE_P(
    Text, Utf8,
    testing::Values(Utf8Case{"Empty", "", "", ""}, Utf8Case{"Ascii", "aZ~ {\"\\n\"}", "aZ~ {\"\\n\"}", "aZ~ {\"\\n\"}"},
                    Utf8Case{"Delete", "\x7F", "\x7F", "\\u007f"},
                    Utf8Case{"LatinLetters", "é À ÿ", "é À ÿ", "\\u00e9 \\u00c0 \\u00ff"},
                    Utf8Case{"ControlCharacters", "\xC2\x80\xC2\x9F", "\xC2\x80\xC2\x9F", "\\u0080\\u009f"},
                    Utf8Case{"LineSeparator", "\xE2\x80\xA8", "\xE2\x80\xA8", "\\u2028"},
                    Utf8Case{"Han", "漢字", "漢字", "\\u6f22\\u5b57"},
                    Utf8Case{"Emoji", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80", "\\ud83d\\ude00"},
                    Utf8Case{"LastCodePoint", "\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF", "\\udbff\\udfff"},
                    Utf8Case{"ReplacementCharacter", bad, bad, "\\ufffd"},
                    Utf8Case{"LoneContinuation", "a\x80z", "a" + bad + "z", "a\\ufffdz"},
                    Utf8Case{"CutOff", "a\xE6\xBC", "a" + bad, "a\\ufffd"},
                    Utf8Case{"CutOffBeforeText", "\xE6\xBCz", bad + "z", "\\ufffdz"},
                    Utf8Case{"Overlong", "\xC0\xAF", bad + bad, "\\ufffd\\ufffd"},
                    Utf8Case{"OverlongThree", "\xE0\x80\xAF", bad + bad + bad, "\\ufffd\\ufffd\\ufffd"},
                    Utf8Case{"Surrogate", "\xED\xA0\x80", bad + bad + bad, "\\ufffd\\ufffd\\ufffd"},
                    Utf8Case{"TooLarge", "\xF4\x90\x80\x80", bad + bad + bad + bad, "\\ufffd\\ufffd\\ufffd\\ufffd"},
                    Utf8Case{"NotALead", "\xFE\xFF", bad + bad, "\\ufffd\\ufffd"}),
    [](const auto& tested) { return tested.param.name; });

TEST(AsciiJson, HoldsNothingButAsciiForEveryTwoBytes) {
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const std::string text = {static_cast<char>(first), static_cast<char>(second)};
            for (const char c : asciiJson(text)) ASSERT_LT(static_cast<unsigned char>(c), 0x7F);
        }
    }
}
