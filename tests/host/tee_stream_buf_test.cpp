#include "console/tee_stream_buf.h"

#include <gtest/gtest.h>

#include <chrono>
#include <iostream>
#include <sstream>

#include "console/log.h"
#include "temporary_folder.h"

using Console::TeeStreamBuf;

class Tee : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string log = folder.file("debug.log");
};

TEST_F(Tee, KeepsTextBackUntilItIsFlushed) {
    TeeStreamBuf tee(nullptr, log);
    std::ostream stream(&tee);
    stream << "pending";
    EXPECT_EQ(bytesOf(log), "");
    stream << std::flush;
    EXPECT_EQ(bytesOf(log), "pending");
}

TEST_F(Tee, WritesAFullBufferOfOneThousandAndTwentyFourBytesAtOnce) {
    TeeStreamBuf tee(nullptr, log);
    std::ostream stream(&tee);
    stream << std::string(1023, 'a');
    EXPECT_EQ(bytesOf(log), "");
    stream.put('b');
    EXPECT_EQ(bytesOf(log), std::string(1023, 'a') + "b");
}

TEST_F(Tee, KeepsTheOrderOfTextsLongerThanItsBuffer) {
    std::string text;
    for (int i = 0; i < 5000; ++i) text += std::to_string(i) + ",";
    {
        TeeStreamBuf tee(nullptr, log);
        std::ostream(&tee) << text;
    }
    EXPECT_EQ(bytesOf(log), text);
}

TEST_F(Tee, LeavesTheFileAloneWhenNothingIsPending) {
    TeeStreamBuf tee(nullptr, log);
    const auto longAgo = std::filesystem::last_write_time(log) - std::chrono::hours(24);
    std::filesystem::last_write_time(log, longAgo);
    EXPECT_EQ(tee.pubsync(), 0);
    EXPECT_EQ(std::filesystem::last_write_time(log), longAgo);
}

TEST_F(Tee, FlushesOnEndOfFileAndAnswersIt) {
    TeeStreamBuf tee(nullptr, log);
    tee.sputn("x", 1);
    struct Opened : TeeStreamBuf {
        using TeeStreamBuf::overflow;
        using TeeStreamBuf::TeeStreamBuf;
    } opened(nullptr, log);
    opened.sputn("y", 1);
    EXPECT_EQ(opened.overflow(std::char_traits<char>::eof()), std::char_traits<char>::eof());
    EXPECT_EQ(bytesOf(log), "y");
    EXPECT_EQ(opened.overflow('z'), 'z');
    EXPECT_EQ(bytesOf(log), "yz");
}

TEST_F(Tee, WritesWhatIsPendingWhenItEnds) {
    {
        TeeStreamBuf tee(nullptr, log);
        tee.sputn("last words", 10);
    }
    EXPECT_EQ(bytesOf(log), "last words");
}

TEST_F(Tee, AppendsToTheLogOfAnEarlierRun) {
    for (const char* run : {"first\n", "second\n"}) {
        TeeStreamBuf tee(nullptr, log);
        std::ostream(&tee) << run << std::flush;
    }
    std::string onDisk = bytesOf(log);
    std::erase(onDisk, '\r');
    EXPECT_EQ(onDisk, "first\nsecond\n");
}

TEST_F(Tee, ForwardsEachBlockToTheConsoleSide) {
    std::stringbuf console;
    TeeStreamBuf tee(&console, log);
    std::ostream(&tee) << "both" << std::flush;
    EXPECT_EQ(console.str(), "both");
    EXPECT_EQ(bytesOf(log), "both");
}

TEST_F(Tee, SwallowsTextWhenTheLogCannotBeOpened) {
    TeeStreamBuf tee(nullptr, folder.path().string());
    std::ostream stream(&tee);
    stream << "lost" << std::flush;
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(tee.pubsync(), 0);
}

/// Redirects the standard streams for one test.
class ConsoleTest : public Tee {
protected:
    void TearDown() override { Console::shutdown(); }
    std::streambuf* outBefore = std::cout.rdbuf();
    std::streambuf* errBefore = std::cerr.rdbuf();
};

TEST_F(ConsoleTest, SendsBothStreamsToOneFile) {
    EXPECT_FALSE(Console::init(log));
    std::cout << "out " << std::flush;
    std::cerr << "err " << std::flush;
    logText("{} {}", "line", 1);
    EXPECT_EQ(bytesOf(log), "out err line 1");
}

TEST_F(ConsoleTest, GivesTheStreamsBackAtTheEnd) {
    Console::init(log);
    EXPECT_NE(std::cout.rdbuf(), outBefore);
    Console::shutdown();
    EXPECT_EQ(std::cout.rdbuf(), outBefore);
    EXPECT_EQ(std::cerr.rdbuf(), errBefore);
}

TEST_F(ConsoleTest, MayBeInstalledAgain) {
    Console::init(log);
    const std::string second = folder.file("second.log");
    Console::init(second);
    logText("to the second\n");
    Console::shutdown();
    EXPECT_EQ(std::cout.rdbuf(), outBefore);
    EXPECT_EQ(bytesOf(log), "");
    EXPECT_NE(bytesOf(second), "");
}

TEST_F(ConsoleTest, EndsHarmlesslyWhenItNeverBegan) {
    Console::shutdown();
    EXPECT_EQ(std::cout.rdbuf(), outBefore);
}
