#include "bridge/link_opener.h"

#include <gtest/gtest.h>

#include <stdexcept>

static std::string launched;

static bool remember(const std::string& url) {
    launched = url;
    return true;
}

static bool refuse(const std::string&) { return false; }

static std::string complaintAbout(const std::string& request, bool (*launch)(const std::string&) = remember) {
    launched.clear();
    try {
        openExternalUrl(request, launch);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return {};
}

class AcceptedUrl : public testing::TestWithParam<const char*> {};

TEST_P(AcceptedUrl, ReachesTheSystem) {
    launched.clear();
    EXPECT_EQ(openExternalUrl(std::string("[\"") + GetParam() + "\"]", remember), "null");
    EXPECT_EQ(launched, GetParam());
}

INSTANTIATE_TEST_SUITE_P(OpenExternalUrl, AcceptedUrl,
                         testing::Values("http://", "https://", "mailto:", "https://example.org/a?b=c#d",
                                         "mailto:a@example.org", "http://localhost:80"));

class RefusedUrl : public testing::TestWithParam<const char*> {};

TEST_P(RefusedUrl, IsToldByItsScheme) {
    EXPECT_EQ(complaintAbout(std::string("[\"") + GetParam() + "\"]"),
              "Invalid URL protocol. Only http://, https://, and mailto: are allowed");
    EXPECT_EQ(launched, "");
}

INSTANTIATE_TEST_SUITE_P(OpenExternalUrl, RefusedUrl,
                         testing::Values("", "HTTP://example.org", "Mailto:x", "http:/", "https:/",
                                         "file:///etc/passwd", "javascript:alert(1)", " https://example.org",
                                         "/tools/words"));

TEST(OpenExternalUrl, NeedsAnArrayWithAnElement) {
    for (const char* request : {"", "[]", "{}", "null", "\"https://x\"", "["}) {
        EXPECT_EQ(complaintAbout(request), "Invalid arguments for openExternalUrl") << request;
    }
}

TEST(OpenExternalUrl, NeedsAString) {
    for (const char* request : {"[7]", "[null]", "[{}]", "[[\"https://x\"]]"}) {
        EXPECT_EQ(complaintAbout(request), "URL must be a string") << request;
    }
}

TEST(OpenExternalUrl, ReportsThatTheSystemRefused) {
    EXPECT_EQ(complaintAbout("[\"https://x\"]", refuse), "Failed to open URL in browser");
}

TEST(OpenExternalUrl, IgnoresFurtherArguments) { EXPECT_EQ(openExternalUrl("[\"http://a\", 7]", remember), "null"); }
