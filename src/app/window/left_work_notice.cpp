#include "app/window/left_work_notice.h"

#include <fmt/chrono.h>

#include <utility>

#include "app/window/notice.h"
#include "bridge/text/native_path.h"

static std::string localTime(std::chrono::system_clock::time_point time) {
    return fmt::format("{:%Y-%m-%d %H:%M:%S}", fmt::localtime(std::chrono::system_clock::to_time_t(time)));
}

std::string listOfCopies(const std::vector<RescuedText>& copies) {
    std::string lines;
    for (const RescuedText& copy : copies) {
        if (!lines.empty()) lines += '\n';
        lines += utf8FromPath(copy.path.filename()) + ", " + localTime(copy.written);
    }
    return lines;
}

LeftWorkNotice::LeftWorkNotice(void* owner, RescueFolder folder, LeftWorkActions actions)
    : notice_(std::make_unique<Notice>(owner)), folder_(std::move(folder)), actions_(std::move(actions)) {}

LeftWorkNotice::~LeftWorkNotice() = default;

void LeftWorkNotice::offer() {
    copies_ = leftWorkCopies(folder_);
    if (copies_.empty()) return;
    NoticeContent content;
    content.heading = "Unsaved work of an earlier run was kept.";
    content.text = listOfCopies(copies_);
    content.buttons.push_back({"Open", [this] {
                                   for (const RescuedText& copy : copies_) actions_.open(copy.path);
                               }});
    content.buttons.push_back({"Show folder", [this] { actions_.showFolder(folder_.path()); }});
    content.buttons.push_back({"Delete", [this] { remove(); }});
    notice_->show(content);
}

void LeftWorkNotice::remove() {
    for (const RescuedText& copy : copies_) folder_.remove(copy.path.filename());
    notice_->close();
}
