// A window whose page answers when the test says so, and whose time passes by hand.
#pragma once
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/window/page_window.h"

class FakePageWindow final : public PageWindow {
public:
    void listen(WindowEvents given) override { events = std::move(given); }
    void evaluate(const std::string& script, std::function<void(PageResult)> done) override {
        scripts.push_back(script);
        evaluations.push_back(std::move(done));
    }
    std::string title() override { return pageTitle; }
    void after(std::chrono::milliseconds delay, std::function<void()> task) override {
        tasks.push_back({now + delay, std::move(task)});
    }
    void navigate(const std::string& url) override { addresses.push_back(url); }
    void askToDiscard(const DiscardQuestion& question, std::function<void(bool)> given) override {
        questions.push_back(question.text);
        answered = std::move(given);
    }
    void report(const std::string& sentence, std::function<void()> given) override {
        sentences.push_back(sentence);
        read = std::move(given);
    }
    void cancelDialogs() override {
        if (const auto answer = std::exchange(answered, nullptr)) answer(false);
    }
    void close() override { closed = true; }

    /// The page answers the oldest script that waits for an answer.
    void answer(const PageResult& result) {
        const auto done = std::move(evaluations.front());
        evaluations.erase(evaluations.begin());
        done(result);
    }
    /// Lets time pass, with what happens meanwhile.
    void pass(std::chrono::milliseconds time) {
        const auto end = now + time;
        for (;;) {
            std::size_t next = tasks.size();
            for (std::size_t i = 0; i < tasks.size(); ++i) {
                if (tasks[i].due <= end && (next == tasks.size() || tasks[i].due < tasks[next].due)) next = i;
            }
            if (next == tasks.size()) break;
            const Task task = std::move(tasks[next]);
            tasks.erase(tasks.begin() + static_cast<std::ptrdiff_t>(next));
            now = task.due;
            task.run();
        }
        now = end;
    }

    struct Task {
        std::chrono::milliseconds due;
        std::function<void()> run;
    };

    WindowEvents events;
    std::vector<std::string> scripts;
    std::vector<std::function<void(PageResult)>> evaluations;
    std::chrono::milliseconds now{0};
    std::vector<Task> tasks;
    std::vector<std::string> addresses;
    std::vector<std::string> questions;
    std::vector<std::string> sentences;
    std::function<void(bool)> answered;
    std::function<void()> read;
    bool closed = false;
    std::string pageTitle;
};
