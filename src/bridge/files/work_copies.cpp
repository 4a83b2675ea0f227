#include "bridge/files/work_copies.h"

#include <exception>
#include <regex>
#include <string_view>
#include <system_error>

#include "bridge/files/rescue_name.h"
#include "bridge/text/native_path.h"
#include "bridge/text/utf8.h"

namespace fs = std::filesystem;

/// In bytes: with number, extension and what a write adds, a name stays below the 255 that file systems take.
static constexpr std::size_t longestStem = 120;
static constexpr int greatestNumber = 999;

static void removeEnding(std::string& text, std::string_view ending) {
    if (text.ends_with(ending)) text.resize(text.size() - ending.size());
}

static bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; }

std::string stemOfWorkCopy(const std::string& documentName) {
    std::string stem = wellFormedUtf8(documentName);
    removeEnding(stem, ".tessary");
    removeEnding(stem, ".words");
    // The work of a copy that was opened is still the same document's.
    static const std::regex mark(R"( \(unsaved( \d+)?\)$)");
    stem = std::regex_replace(stem, mark, "");
    for (char& letter : stem) {
        const bool isControl = static_cast<unsigned char>(letter) < ' ' || letter == 0x7F;
        if (isControl || std::string_view(R"(/\<>:"|?*)").find(letter) != std::string_view::npos) letter = '_';
    }
    if (stem.size() > longestStem) {
        std::size_t end = longestStem;
        while (end > 0 && isContinuation(stem[end])) --end;
        stem.resize(end);
    }
    return stem.empty() || stem == "." || stem == ".." ? "Untitled" : stem;
}

std::string nameOfWorkCopy(const std::string& stem, int number) {
    return stem + (number == 1 ? " (unsaved)" : " (unsaved " + std::to_string(number) + ")") + documentExtension;
}

bool isNameOfWorkCopy(const std::string& name) {
    static const std::regex ofCopy(R"([^]+ \(unsaved( \d+)?\)\.words\.tessary)");
    return std::regex_match(name, ofCopy);
}

static fs::path pathFromUtf8(const std::string& text) { return std::u8string(text.begin(), text.end()); }

static fs::path lockFolderOf(const RescueFolder& folder) { return folder.path() / "running"; }

static fs::path lockOf(const RescueFolder& folder, fs::path name) { return lockFolderOf(folder) / (name += ".lock"); }

static bool isTaken(const fs::path& path) {
    std::error_code unknown;
    return fs::exists(fs::symlink_status(path, unknown));
}

bool WorkCopy::takeName(const std::string& stem) {
    if (folder_.path().empty() || !makePrivateFolder(folder_.path()) || !makePrivateFolder(lockFolderOf(folder_))) {
        return false;
    }
    for (int number = 1; number <= greatestNumber; ++number) {
        const fs::path name = pathFromUtf8(nameOfWorkCopy(stem, number));
        if (isTaken(folder_.path() / name)) continue;
        RunLock lock = takeRunLock(lockOf(folder_, name));
        // Its owner may have ended in between, and left it.
        if (!lock || isTaken(folder_.path() / name)) continue;
        stem_ = stem;
        name_ = name;
        lock_ = std::move(lock);
        return true;
    }
    return false;
}

bool WorkCopy::write(const std::string& documentName, const std::string& text) {
    try {
        const std::string stem = stemOfWorkCopy(documentName);
        if (exists() && stem != stem_) remove();
        if (!exists() && !takeName(stem)) return false;
        if (folder_.write(name_, text)) return true;
        if (!isTaken(folder_.path() / name_)) leave();
    } catch (const std::exception&) {
        return false;
    }
    return false;
}

void WorkCopy::remove() {
    if (exists()) folder_.remove(name_);
    leave();
}

void WorkCopy::leave() {
    stem_.clear();
    name_.clear();
    lock_.reset();
}

std::vector<RescuedText> leftWorkCopies(const RescueFolder& folder) {
    std::vector<RescuedText> left;
    try {
        for (RescuedText& text : folder.list()) {
            const fs::path name = text.path.filename();
            if (!isNameOfWorkCopy(utf8FromPath(name)) || !makePrivateFolder(lockFolderOf(folder))) continue;
            if (takeRunLock(lockOf(folder, name))) left.push_back(std::move(text));
        }
    } catch (const std::exception&) {
        return left;
    }
    return left;
}
