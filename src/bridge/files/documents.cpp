#include "bridge/files/documents.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <string_view>

#include "bridge/files/other_text.h"
#include "bridge/files/recovery_file.h"
#include "bridge/files/rescue_name.h"
#include "bridge/files/text_mode.h"
#include "bridge/files/whole_file.h"
#include "bridge/text/native_path.h"

namespace fs = std::filesystem;

/// The file that a chain of links leads to, whether it is there or not.
static fs::path whereLinksLead(fs::path path) {
    static constexpr int mostLinks = 40;
    std::error_code failure;
    for (int links = 0; links < mostLinks && fs::is_symlink(path, failure); ++links) {
        path = path.parent_path() / fs::read_symlink(path, failure);
    }
    return path;
}

static std::size_t hashOf(std::string_view bytes) { return std::hash<std::string_view>{}(bytes); }

static std::optional<std::size_t> hashOf(RegularFile& file) {
    const auto bytes = file.bytes();
    return bytes ? std::optional(hashOf(*bytes)) : std::nullopt;
}

Outcome Documents::read(const std::string& path) {
    try {
        const fs::path name = pathFromNarrow(path);
        const fs::path leadsTo = whereLinksLead(name);
        finishCutOffSave(name, leadsTo);
        RegularFile file = RegularFile::open(leadsTo, RegularFile::Access::read);
        if (!file.isOpen()) return failed(fileNotFound);
        const FileStamp stamp = file.stamp();
        auto bytes = file.bytes();
        if (!bytes) return failed(fileReadFailed);
        known_[path] = {.stamp = stamp, .hash = hashOf(*bytes), .recovery = {}, .rescued = {}};
        return succeeded(textOfDiskBytes(*std::move(bytes)));
    } catch (const std::exception&) {
        return failed(fileReadFailed);
    }
}

Outcome Documents::write(const std::string& path, const std::string& text) {
    try {
        const fs::path name = pathFromNarrow(path);
        Save saving{name, whereLinksLead(name), text, diskBytesOf(text), known_[path]};
        return save(saving);
    } catch (const std::exception&) {
        return failed(fileWriteFailed);
    }
}

Outcome Documents::save(Save& save) {
    static constexpr int mostTries = 100;
    for (int tries = 1;; ++tries) {
        RegularFile document = RegularFile::open(save.path, RegularFile::Access::readAndWrite);
        if (document.isOpen()) {
            static_cast<void>(document.lock(saveLockPatience));
            // Another program may have put another file in its place meanwhile.
            if (document.hasName(save.path) || tries == mostTries) return saveOver(save, document);
            continue;
        }
        if (!saysMissing(document.error())) return refuse(save, document.error());
        const fs::path incomplete = incompleteFileOf(recoveryFileOf(save.path));
        const WriteOutcome first = writeWholeFile(
            {.path = save.path, .incomplete = incomplete, .kind = RegularFile::NewFile::ordinary, .replaces = false},
            save.bytes);
        if (first.result == WriteResult::nameTaken && tries < mostTries) continue;
        if (first.result != WriteResult::written) return saveUnprotected(save);
        succeed(save, first.stamp);
        return succeeded();
    }
}

Outcome Documents::saveOver(Save& save, RegularFile& document) {
    if (wasChangedElsewhere(save, document)) keepOtherText(save, document);
    const WriteOutcome recovery = writeRecoveryFile(save.path, document, save.bytes, save.known.recovery);
    if (recovery.result == WriteResult::ioError) {
        fail(save, recovery.error, std::nullopt);
        return failed(fileWriteFailed);
    }
    const bool isProtected = recovery.result == WriteResult::written;
    if (document.overwrite(save.bytes) && document.flush()) {
        if (isProtected) removeRecoveryFile(save.path, recovery.stamp);
        succeed(save, document.stamp());
        return succeeded();
    }
    const std::error_code reason = document.error();
    save.known.stamp = document.stamp();
    save.known.hash = hashOf(document);
    fail(save, reason, isProtected ? std::optional(recovery.stamp) : std::nullopt);
    return succeeded();
}

// For a new document in a folder that takes no second file, or on a disk that has no room for all of it.
Outcome Documents::saveUnprotected(Save& save) {
    RegularFile document = RegularFile::create(save.path, RegularFile::NewFile::ordinary);
    if (!document.isOpen()) return refuse(save, document.error());
    if (document.overwrite(save.bytes) && document.flush()) succeed(save, document.stamp());
    else fail(save, document.error(), std::nullopt);
    return succeeded();
}

Outcome Documents::refuse(Save& save, const std::error_code& reason) {
    std::optional<FileStamp> recovery;
    // A document that may be read only can still have a text beside it.
    if (RegularFile document = RegularFile::open(save.path, RegularFile::Access::read); document.isOpen()) {
        static_cast<void>(document.lock(saveLockPatience));
        const WriteOutcome outcome = writeRecoveryFile(save.path, document, save.bytes, save.known.recovery);
        if (outcome.result == WriteResult::written) recovery = outcome.stamp;
    }
    fail(save, reason, recovery);
    return failed(fileWriteFailed);
}

bool Documents::wasChangedElsewhere(const Save& save, RegularFile& document) const {
    if (!save.known.hash || document.stamp() == save.known.stamp) return false;
    const auto hash = hashOf(document);
    // The same bytes are no loss, whoever wrote them. They may also have been written from here, under another name.
    return !hash ||
           std::none_of(known_.begin(), known_.end(), [&](const auto& each) { return each.second.hash == hash; });
}

void Documents::keepOtherText(const Save& save, RegularFile& document) const {
    const KeptText kept = keepBeside(save.path, document, rescue_);
    if (reporter_ != nullptr) reporter_->replaced({save.name, kept.path, inTheSystemsWords(kept.error)});
}

void Documents::succeed(Save& save, const FileStamp& stamp) {
    if (!save.known.rescued.empty()) rescue_.remove(save.known.rescued.filename());
    save.known = {.stamp = stamp, .hash = hashOf(save.bytes), .recovery = {}, .rescued = {}};
    if (reporter_ != nullptr) reporter_->saved(save.name);
}

void Documents::fail(Save& save, const std::error_code& reason, const std::optional<FileStamp>& recovery) {
    Known& known = save.known;
    if (recovery) known.recovery = recovery;
    const auto rescued = recovery ? std::nullopt
                         : known.rescued.empty()
                             ? rescue_.writeNew(rescueStemOf(save.name, "not saved"), documentExtension, save.text)
                             : rescue_.write(known.rescued.filename(), save.text);
    if (rescued) known.rescued = *rescued;
    if (reporter_ == nullptr) return;
    const fs::path kept = recovery ? recoveryFileOf(save.path) : rescued.value_or(fs::path());
    reporter_->failed({save.name, inTheSystemsWords(reason), kept});
}
