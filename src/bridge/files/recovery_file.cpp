#include "bridge/files/recovery_file.h"

#include <string>
#include <vector>

#include "bridge/files/file_moves.h"

namespace fs = std::filesystem;

static const fs::path recoveryEnding = ".new-text";

fs::path recoveryFileOf(const fs::path& document) { return withEnding(document, recoveryEnding); }

fs::path incompleteFileOf(const fs::path& path) { return withEnding(path, ".incomplete"); }

static bool isSameFile(const FileStamp& one, const FileStamp& other) {
    return one.device == other.device && one.number == other.number;
}

static bool holdSameBytes(RegularFile& one, RegularFile& other) {
    if (one.stamp().size != other.stamp().size) return false;
    const auto bytes = one.bytes();
    return bytes && bytes == other.bytes();
}

static bool moveAside(const fs::path& recovery) {
    for (int number = 1;; ++number) {
        const MoveResult result = moveToNewName(recovery, withEnding(recovery, "." + std::to_string(number)));
        if (result != MoveResult::taken) return result == MoveResult::moved;
    }
}

/// False when the name is not to be had.
static bool makeRoom(const fs::path& recovery, RegularFile& document, const std::optional<FileStamp>& superseded) {
    RegularFile older = RegularFile::open(recovery, RegularFile::Access::read);
    if (!older.isOpen() && saysMissing(older.error())) return true;
    if (older.isOpen() && superseded && isSameFile(older.stamp(), *superseded)) return true;
    if (older.isOpen() && holdSameBytes(older, document)) return true;
    // What cannot be read is kept; what is no file keeps its name.
    std::error_code unknown;
    return fs::is_regular_file(fs::symlink_status(recovery, unknown)) && moveAside(recovery);
}

WriteOutcome writeRecoveryFile(const fs::path& path, RegularFile& document, std::string_view bytes,
                               const std::optional<FileStamp>& superseded) {
    const fs::path recovery = recoveryFileOf(path);
    if (!makeRoom(recovery, document, superseded)) return {WriteResult::refused, {}, {}};
    return writeWholeFile({.path = recovery, .incomplete = incompleteFileOf(recovery), .accessLike = &document}, bytes);
}

void removeRecoveryFile(const fs::path& path, const FileStamp& written) {
    const fs::path recovery = recoveryFileOf(path);
    const RegularFile there = RegularFile::open(recovery, RegularFile::Access::read);
    // One that cannot be read, because the document cannot either, is taken for it.
    if (!there.isOpen() || isSameFile(there.stamp(), written)) removeFile(recovery);
}

/// The recovery files that the document may have: one for each of its names.
static std::vector<fs::path> recoveryFilesOf(const fs::path& name, const fs::path& path) {
    std::vector<fs::path> found{recoveryFileOf(path)};
    if (name != path) found.push_back(recoveryFileOf(name));
    const RegularFile document = RegularFile::open(path, RegularFile::Access::read);
    if (!document.isOpen() || !document.hasSeveralNames()) return found;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : ".";
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
        if (entry->path().extension() != recoveryEnding) continue;
        const fs::path other = folder / entry->path().stem();
        if (other != path && document.hasName(other)) found.push_back(entry->path());
    }
    return found;
}

static void finishFrom(const fs::path& recoveryPath, const fs::path& path) {
    if (const RegularFile seen = RegularFile::open(recoveryPath, RegularFile::Access::read); !seen.isOpen()) return;
    RegularFile document = RegularFile::open(path, RegularFile::Access::readAndWrite);
    if (!document.isOpen() || document.lock(saveLockPatience) == RegularFile::Lock::busy) return;
    // A save that was waited for has removed it.
    RegularFile recovery = RegularFile::open(recoveryPath, RegularFile::Access::read);
    if (!recovery.isOpen() || !recovery.hasSameOwnerAs(document) || !document.hasName(path)) return;
    const auto newText = recovery.bytes();
    const auto text = document.bytes();
    if (!newText || !text || !newText->starts_with(*text)) return;
    const std::string_view rest = std::string_view(*newText).substr(text->size());
    if ((rest.empty() || document.append(rest)) && document.flush()) removeFile(recoveryPath);
}

void finishCutOffSave(const fs::path& name, const fs::path& path) {
    for (const fs::path& recovery : recoveryFilesOf(name, path)) finishFrom(recovery, path);
}
