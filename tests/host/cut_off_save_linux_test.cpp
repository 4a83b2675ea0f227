#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <thread>

#include "bridge/files/file_io.h"
#include "temporary_folder.h"

namespace {
// Fewer are enough where every process is slow, such as under an emulator of the processor.
const int kills = std::getenv("TESSARY_KILLS") != nullptr ? std::stoi(std::getenv("TESSARY_KILLS")) : 400;

struct Tally {
    int damaged = 0;  ///< documents that were cut off, with a whole recovery file beside them
    int lost = 0;     ///< no whole text left
};

/// Two texts of `size` bytes, saved in turn without a pause by a process that is killed at some moment of it.
class Saving {
public:
    explicit Saving(std::size_t size) : texts_{std::string(size, 'a') + "end a", std::string(size, 'b') + "end b"} {}

    Tally killAgainAndAgain() {
        std::mt19937 random{std::random_device{}()};
        std::uniform_int_distribution<std::int64_t> moment(0, 2 * microsecondsOfASave());
        Tally tally;
        for (int kill = 0; kill < kills; ++kill) {
            killWhileSaving(std::chrono::microseconds(moment(random)));
            const bool damaged = !isWhole(document_);
            if (damaged && isWhole(document_ + ".new-text")) ++tally.damaged;
            if (damaged && !isWhole(document_ + ".new-text")) ++tally.lost;
        }
        return tally;
    }

private:
    [[nodiscard]] std::int64_t microsecondsOfASave() const {
        putBytes(document_, texts_[0]);
        const auto begin = std::chrono::steady_clock::now();
        for (const std::string& text : texts_) EXPECT_TRUE(writeTextFile(document_, text).success);
        const auto duration = std::chrono::steady_clock::now() - begin;
        return std::chrono::duration_cast<std::chrono::microseconds>(duration).count() / 2;
    }

    void killWhileSaving(std::chrono::microseconds after) const {
        const pid_t saver = fork();
        if (saver == 0) saveForEver();
        std::this_thread::sleep_for(after);
        kill(saver, SIGKILL);
        waitpid(saver, nullptr, 0);
    }

    [[noreturn]] void saveForEver() const {
        for (std::size_t turn = 0;; ++turn)
            if (!writeTextFile(document_, texts_[turn % 2]).success) _exit(1);
    }

    [[nodiscard]] bool isWhole(const std::string& path) const {
        const std::string bytes = bytesOf(path);
        return bytes == texts_[0] || bytes == texts_[1];
    }

    TemporaryFolder folder_;
    std::string document_ = folder_.file("document.words.tessary");
    std::array<std::string, 2> texts_;
};
}  // namespace

TEST(ASaveThatIsCutOff, LeavesOneWholeText) {
    int damaged = 0;
    for (const std::size_t size : {2'000, 200'000, 4'000'000}) {
        const Tally tally = Saving(size).killAgainAndAgain();
        std::cout << size << " bytes, " << kills << " kills: " << tally.damaged << " documents cut off, " << tally.lost
                  << " texts lost\n";
        EXPECT_EQ(tally.lost, 0) << size;
        damaged += tally.damaged;
    }
    EXPECT_GT(damaged, 0) << "no kill came in the middle of a document: this shows nothing";
}
