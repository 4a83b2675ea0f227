#include <gtest/gtest.h>

#include <string>
#include <thread>

static std::string destroyed;

struct Noted {
    explicit Noted(std::string name) : text(std::move(name)) {}
    ~Noted() { destroyed += text; }
    std::string text;
};

TEST(ThreadLocalObjects, AreWholeWhenTheirThreadDestroysThem) {
    destroyed.clear();
    std::thread([] {
        thread_local const Noted first("a text that is too long for a short string; ");
        thread_local const Noted second("destroyed first, ");
        static_cast<void>(first.text.size() + second.text.size());
    }).join();
    EXPECT_EQ(destroyed, "destroyed first, a text that is too long for a short string; ");
}
