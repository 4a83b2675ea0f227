#include "server/embedded_filesystem.h"

#include <gtest/gtest.h>

#include <system_error>

#include "temporary_folder.h"

struct PathCase {
    const char* given;
    const char* normal;
};

class NormalizePath : public testing::TestWithParam<PathCase> {};

TEST_P(NormalizePath, DropsNeedlessSlashes) { EXPECT_EQ(normalizePath(GetParam().given), GetParam().normal); }

INSTANTIATE_TEST_SUITE_P(Paths, NormalizePath,
                         testing::Values(PathCase{"", ""}, PathCase{"/", ""}, PathCase{"////", ""}, PathCase{"a", "a"},
                                         PathCase{"/a/b/", "a/b"}, PathCase{"//a////b//c///", "a/b/c"},
                                         PathCase{"a/../b/./c", "a/../b/./c"}, PathCase{"\\a\\", "\\a\\"},
                                         PathCase{"A/ b", "A/ b"}));

/// Every file of the built page, and package.json, by its path in the tree.
static std::map<std::string, std::string> filesOnDisk() {
    std::map<std::string, std::string> files = {{"package.json", bytesOf(PACKAGE_JSON)}};
    for (const auto& entry : std::filesystem::recursive_directory_iterator(WEB_DIST)) {
        if (!entry.is_regular_file()) continue;
        const auto relative = std::filesystem::relative(entry.path(), WEB_DIST).generic_string();
        files["dist/" + relative] = bytesOf(entry.path().string());
    }
    return files;
}

TEST(EmbeddedTree, HoldsEveryFileByteForByte) {
    const EmbeddedFilesystem tree = getEmbeddedFilesystem();
    for (const auto& [path, bytes] : filesOnDisk()) {
        const EmbeddedFile file = tree.openEmbedded(path);
        EXPECT_EQ(file.size(), bytes.size()) << path;
        EXPECT_TRUE(std::string(file.begin(), file.end()) == bytes) << path;
        EXPECT_EQ(*file.end(), '\0') << path;
    }
}

TEST(EmbeddedTree, HoldsNothingElse) {
    std::size_t folders = 2;  // the root and dist
    for (const auto& entry : std::filesystem::recursive_directory_iterator(WEB_DIST)) folders += entry.is_directory();
    static_cast<void>(getEmbeddedFilesystem());
    EXPECT_EQ(getRootIndex().size(), filesOnDisk().size() + folders);
}

TEST(EmbeddedTree, FindsAPathInEverySpelling) {
    const EmbeddedFilesystem tree = getEmbeddedFilesystem();
    const EmbeddedEntry* entry = tree.findEntry("dist/index.html");
    ASSERT_NE(entry, nullptr);
    for (const char* spelling : {"/dist/index.html", "dist/index.html/", "dist//index.html", "///dist/index.html"}) {
        EXPECT_EQ(tree.findEntry(spelling), entry) << spelling;
    }
}

TEST(EmbeddedTree, FindsFolders) {
    const EmbeddedFilesystem tree = getEmbeddedFilesystem();
    for (const char* path : {"", "/", "dist", "dist/assets", "/dist/app-icons/"}) {
        const EmbeddedEntry* entry = tree.findEntry(path);
        ASSERT_NE(entry, nullptr) << path;
        EXPECT_FALSE(entry->isFile()) << path;
        EXPECT_EQ(entry->file(), nullptr);
        EXPECT_NE(entry->directory(), nullptr);
    }
    EXPECT_TRUE(tree.findEntry("dist")->directory()->child("index.html")->isFile());
    EXPECT_EQ(tree.findEntry("dist")->directory()->child("nothing"), nullptr);
}

TEST(EmbeddedTree, FindsNothingUnderOtherNames) {
    const EmbeddedFilesystem tree = getEmbeddedFilesystem();
    for (const char* path : {"dist/./index.html", "dist/assets/../index.html", "DIST/index.html", "dist/package.json",
                             "index.html", "dist\\index.html"}) {
        EXPECT_EQ(tree.findEntry(path), nullptr) << path;
    }
}

TEST(EmbeddedTree, RefusesToOpenFoldersAndMissingPathsByTheirNameAsGiven) {
    const EmbeddedFilesystem tree = getEmbeddedFilesystem();
    for (const std::string path : {"", "/", "dist", "dist/assets", "//missing//path"}) {
        try {
            static_cast<void>(tree.openEmbedded(path));
            FAIL() << path;
        } catch (const std::system_error& error) {
            EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
            EXPECT_EQ(error.code().value(), 2);
            EXPECT_EQ(error.code().category(), std::generic_category());
            EXPECT_NE(std::string(error.what()).find(path), std::string::npos);
        }
    }
}

TEST(EmbeddedTree, IsSharedByEveryHandle) {
    EXPECT_EQ(getEmbeddedFilesystem().findEntry("package.json"), getEmbeddedFilesystem().findEntry("package.json"));
}
