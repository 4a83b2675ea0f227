#include <gtest/gtest.h>

#include <filesystem>

#include "app/command_line.h"

TEST(ParseCommandLineOnLinux, PassesOnWhatTheSystemCannotLookUp) {
    const std::string tooLong(300, 'n');
    const char* arguments[] = {"tessary", tooLong.c_str()};
    EXPECT_THROW(static_cast<void>(parseCommandLine(2, arguments)), std::filesystem::filesystem_error);
}
