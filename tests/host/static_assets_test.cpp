#include "server/static_assets.h"

#include <gtest/gtest.h>

#include "server/mime_types.h"

static httplib::Response answerTo(const std::string& path) {
    httplib::Request request;
    request.path = path;
    httplib::Response response;
    serveEmbeddedFile(getEmbeddedFilesystem(), request, response);
    return response;
}

static std::string embedded(const std::string& path) {
    const EmbeddedFile file = getEmbeddedFilesystem().openEmbedded(path);
    return {file.begin(), file.end()};
}

struct ServedCase {
    const char* path;
    const char* file;
    const char* type;
};

class Served : public testing::TestWithParam<ServedCase> {};

TEST_P(Served, FileWithItsType) {
    const httplib::Response response = answerTo(GetParam().path);
    EXPECT_EQ(response.status, -1) << "the server turns it into 200";
    EXPECT_TRUE(response.body == embedded(GetParam().file));
    EXPECT_EQ(response.get_header_value("Content-Type"), GetParam().type);
    EXPECT_EQ(response.headers.size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(
    StaticAssets, Served,
    testing::Values(ServedCase{"/", "dist/index.html", "text/html"}, ServedCase{"", "dist/index.html", "text/html"},
                    ServedCase{"/index.html", "dist/index.html", "text/html"},
                    ServedCase{"/favicon.ico", "dist/favicon.ico", "image/x-icon"},
                    ServedCase{"//favicon.ico", "dist/favicon.ico", "image/x-icon"},
                    ServedCase{"/favicon.ico/", "dist/favicon.ico", "application/octet-stream"},
                    ServedCase{"/favicon.svg", "dist/favicon.svg", "image/svg+xml"},
                    ServedCase{"/favicon.png", "dist/favicon.png", "image/png"},
                    ServedCase{"/sw.js", "dist/sw.js", "application/javascript"},
                    ServedCase{"/manifest.webmanifest", "dist/manifest.webmanifest", "application/octet-stream"}));

class Missing : public testing::TestWithParam<const char*> {};

TEST_P(Missing, IsNotFound) {
    const httplib::Response response = answerTo(GetParam());
    EXPECT_EQ(response.status, 404);
    EXPECT_EQ(response.body, "Not Found");
    EXPECT_EQ(response.get_header_value("Content-Type"), "text/plain");
}

INSTANTIATE_TEST_SUITE_P(StaticAssets, Missing,
                         testing::Values("/dist/index.html", "/assets", "/assets/", "/app-icons", "/settings",
                                         "/tools/words", "/package.json", "/../package.json", "/assets/../index.html",
                                         "/./index.html", "/FAVICON.ICO", "/index.html.map", "/\\index.html"));

TEST(MimeTypes, AreThese) {
    EXPECT_EQ(mimeTypes.size(), 16u);
    EXPECT_EQ(mimeTypeOf("a.htm"), "text/html");
    EXPECT_EQ(mimeTypeOf("a.css"), "text/css");
    EXPECT_EQ(mimeTypeOf("a.json"), "application/json");
    EXPECT_EQ(mimeTypeOf("a.jpg"), "image/jpeg");
    EXPECT_EQ(mimeTypeOf("a.jpeg"), "image/jpeg");
    EXPECT_EQ(mimeTypeOf("a.gif"), "image/gif");
    EXPECT_EQ(mimeTypeOf("a.woff"), "font/woff");
    EXPECT_EQ(mimeTypeOf("a.woff2"), "font/woff2");
    EXPECT_EQ(mimeTypeOf("a.ttf"), "font/ttf");
    EXPECT_EQ(mimeTypeOf("a.eot"), "application/vnd.ms-fontobject");
    EXPECT_EQ(mimeTypeOf("a.otf"), "font/otf");
}

TEST(MimeTypes, AreExactAndHaveADefault) {
    for (const char* path : {"a.ICO", "a.txt", "a.js.map", "a", ".js", "dist.js/a"}) {
        EXPECT_EQ(mimeTypeOf(path), "application/octet-stream") << path;
    }
}
