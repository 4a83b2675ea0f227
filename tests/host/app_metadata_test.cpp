#include "app/app_metadata.h"

#include <gtest/gtest.h>

TEST(AppMetadata, ReadsTheEmbeddedPackageFile) {
    const AppMetadata& metadata = AppMetadata::instance();
    EXPECT_EQ(metadata.name(), "tessary");
    EXPECT_EQ(metadata.displayName(), "Tessary");
    EXPECT_EQ(metadata.version(), "1.5.4");
    EXPECT_EQ(&metadata, &AppMetadata::instance());
}

TEST(AppMetadata, LeavesAMissingDisplayNameEmpty) {
    const AppMetadata metadata(R"({"name": "tessary", "version": "1.5.4"})");
    EXPECT_EQ(metadata.name(), "tessary");
    EXPECT_EQ(metadata.displayName(), "");
    EXPECT_EQ(metadata.version(), "1.5.4");
}

TEST(AppMetadata, GivesANumberAsItsText) { EXPECT_EQ(AppMetadata(R"({"version": 2})").version(), "2"); }

TEST(AppMetadata, LeavesANullEmpty) { EXPECT_EQ(AppMetadata(R"({"name": null})").name(), ""); }

class BrokenPackageFile : public testing::TestWithParam<const char*> {};

TEST_P(BrokenPackageFile, LeavesAllTextsEmpty) {
    const AppMetadata metadata(GetParam());
    EXPECT_EQ(metadata.name() + metadata.displayName() + metadata.version(), "");
}

INSTANTIATE_TEST_SUITE_P(AppMetadata, BrokenPackageFile,
                         testing::Values("", "{\"name\": ", "not json", "[\"name\"]", "\"name\"", "7"));
