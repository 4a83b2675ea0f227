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

#include "bridge/files/documents.h"
#include "temporary_folder.h"

namespace {
// So few are for every day; docs/hardening.md has the figures of more.
const int kills = std::getenv("TESSARY_KILLS") != nullptr ? std::stoi(std::getenv("TESSARY_KILLS")) : 20;

struct Tally {
    int cutOff = 0;   ///< documents that the kill left in part
    int whole = 0;    ///< documents that were whole once the program had opened them
    int missing = 0;  ///< new documents that were not there yet
};

/// Two texts of `size` bytes, saved in turn without a pause by a process that is killed at some moment of it.
class Saving {
public:
    explicit Saving(std::size_t size) : texts_{std::string(size, 'a') + "end a", std::string(size, 'b') + "end b"} {}

    Tally killOverADocument() {
        putBytes(document_, texts_[0]);
        return killAgainAndAgain([this] {
            for (std::size_t turn = 0;; ++turn) save(texts_[turn % 2]);
        });
    }

    Tally killAtFirstSaves() {
        return killAgainAndAgain([this] {
            for (std::size_t turn = 0;; ++turn) {
                unlink(document_.c_str());
                save(texts_[turn % 2]);
            }
        });
    }

    /// Opens a document that was cut off in its middle, with its recovery file beside it.
    Tally killWhileOpening() {
        cutOff();
        const std::int64_t longest = 2 * microsecondsOf([this] { EXPECT_TRUE(Documents().read(document_).success); });
        std::mt19937 random{std::random_device{}()};
        std::uniform_int_distribution<std::int64_t> moment(0, longest);
        Tally tally;
        for (int kill = 0; kill < kills; ++kill) {
            cutOff();
            const auto open = [this] {
                static_cast<void>(Documents().read(document_));
                _exit(0);
            };
            killDuring(open, std::chrono::microseconds(moment(random)));
            if (!isWhole(bytesOf(document_))) ++tally.cutOff;
            const Outcome opened = Documents().read(document_);
            const bool isReplayed = opened.payload == texts_[0] && bytesOf(document_) == texts_[0];
            if (isReplayed && !std::filesystem::exists(recovery_)) ++tally.whole;
        }
        return tally;
    }

private:
    void cutOff() const {
        putBytes(recovery_, texts_[0]);
        putBytes(document_, texts_[0].substr(0, texts_[0].size() / 2));
    }

    template <typename Work>
    Tally killAgainAndAgain(Work saving) {
        std::mt19937 random{std::random_device{}()};
        std::uniform_int_distribution<std::int64_t> moment(0, 2 * microsecondsOfASave());
        Tally tally;
        for (int kill = 0; kill < kills; ++kill) {
            killDuring(saving, std::chrono::microseconds(moment(random)));
            if (!std::filesystem::exists(document_)) {
                ++tally.missing;
                continue;
            }
            if (!isWhole(bytesOf(document_))) ++tally.cutOff;
            const Outcome opened = Documents().read(document_);
            if (isWhole(opened.payload) && bytesOf(document_) == opened.payload) ++tally.whole;
        }
        return tally;
    }

    [[nodiscard]] std::int64_t microsecondsOfASave() const {
        return microsecondsOf([this] {
                   for (const std::string& text : texts_) EXPECT_TRUE(Documents().write(document_, text).success);
               }) /
               2;
    }

    template <typename Work>
    static std::int64_t microsecondsOf(Work saving) {
        const auto begin = std::chrono::steady_clock::now();
        saving();
        const auto duration = std::chrono::steady_clock::now() - begin;
        return std::chrono::duration_cast<std::chrono::microseconds>(duration).count();
    }

    template <typename Work>
    static void killDuring(Work saving, std::chrono::microseconds after) {
        const pid_t saver = fork();
        if (saver == 0) saving();
        std::this_thread::sleep_for(after);
        kill(saver, SIGKILL);
        waitpid(saver, nullptr, 0);
    }

    void save(const std::string& text) const {
        if (!Documents().write(document_, text).success) _exit(1);
    }

    [[nodiscard]] bool isWhole(const std::string& bytes) const { return bytes == texts_[0] || bytes == texts_[1]; }

    TemporaryFolder folder_;
    std::string document_ = folder_.file("document.words.tessary");
    std::string recovery_ = document_ + ".new-text";
    std::array<std::string, 2> texts_;
};

constexpr std::array<std::size_t, 3> sizes{2'000, 200'000, 4'000'000};
}  // namespace

TEST(AKill, LeavesADocumentThatIsWholeWhenItIsOpened) {
    int cutOff = 0;
    const auto killWhileSaving = [&cutOff](std::size_t size) {
        const Tally tally = Saving(size).killOverADocument();
        std::cout << size << " bytes, " << kills << " kills: " << tally.cutOff << " documents cut off, " << tally.whole
                  << " whole when opened\n";
        EXPECT_EQ(tally.whole, kills) << size;
        cutOff += tally.cutOff;
    };
    for (const std::size_t size : sizes) killWhileSaving(size);
    // A few kills may all miss the short time in which the document is in part.
    for (int more = 0; cutOff == 0 && more < 20; ++more) killWhileSaving(sizes.back());
    EXPECT_GT(cutOff, 0) << "no kill came in the middle of a document: this shows nothing";
}

TEST(AKill, LeavesANewDocumentThatIsWholeOrNotThere) {
    int missing = 0;
    for (const std::size_t size : sizes) {
        const Tally tally = Saving(size).killAtFirstSaves();
        std::cout << size << " bytes, " << kills << " kills of first saves: " << tally.whole << " whole, "
                  << tally.missing << " not there\n";
        EXPECT_EQ(tally.cutOff, 0) << size;
        EXPECT_EQ(tally.whole + tally.missing, kills) << size;
        missing += tally.missing;
    }
    EXPECT_GT(missing, 0) << "no kill came before a document was there: this shows nothing";
}

TEST(AKill, LeavesADocumentWhoseSaveIsBeingFinishedWholeWhenItIsOpenedNext) {
    int cutOff = 0;
    for (const std::size_t size : sizes) {
        const Tally tally = Saving(size).killWhileOpening();
        std::cout << size << " bytes, " << kills << " kills while a cut-off document is opened: " << tally.cutOff
                  << " still cut off, " << tally.whole << " whole when opened next\n";
        EXPECT_EQ(tally.whole, kills) << size;
        cutOff += tally.cutOff;
    }
    EXPECT_GT(cutOff, 0) << "no kill came before the save was finished: this shows nothing";
}
