#include "app/window/graphics_processor_linux.h"

#include <gtest/gtest.h>

#include <fstream>

#include "temporary_folder.h"

TEST(HasGraphicsProcessor, FindsADeviceThatRenders) {
    const TemporaryFolder folder;
    std::ofstream(folder.path() / "card0");
    std::ofstream(folder.path() / "renderD128");
    EXPECT_TRUE(hasGraphicsProcessor(folder.path()));
}

TEST(HasGraphicsProcessor, IsNotMetByACardThatOnlyShowsPictures) {
    const TemporaryFolder folder;
    std::ofstream(folder.path() / "card0");
    EXPECT_FALSE(hasGraphicsProcessor(folder.path()));
}

TEST(HasGraphicsProcessor, IsNotMetWhereTheSystemListsNoDevices) {
    const TemporaryFolder folder;
    EXPECT_FALSE(hasGraphicsProcessor(folder.path() / "dri"));
}
