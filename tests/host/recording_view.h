// A window that only remembers what it was asked.
#pragma once
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "bridge/web_view.h"

class RecordingView final : public WebView {
public:
    void setTitle(const std::string&) override {}
    void init(const std::string& script) override { scripts.push_back(script); }
    void bind(const std::string& name, Handler handler) override { add(name, std::move(handler)); }
    void bindThrowing(const std::string& name, Handler handler) override { add(name, std::move(handler)); }
    void navigate(const std::string&) override {}
    void setSize(int, int) override {}
    void run() override {}

    std::vector<std::string> scripts;
    std::vector<std::string> names;
    std::map<std::string, Handler> handlers;

private:
    void add(const std::string& name, Handler handler) {
        names.push_back(name);
        handlers[name] = std::move(handler);
    }
};
