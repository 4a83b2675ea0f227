#include "bridge/files/whole_file.h"

#include "bridge/files/file_moves.h"

/// An empty file under this name, locked, in place of one that a program left there when it was killed. Another program
/// that is still at it is waited for.
static RegularFile createInPlaceOfLeftover(const std::filesystem::path& path, RegularFile::NewFile kind) {
    const auto end = std::chrono::steady_clock::now() + saveLockPatience;
    for (;;) {
        RegularFile file = RegularFile::create(path, kind);
        if (!file.isOpen() && !saysTaken(file.error())) return file;
        if (file.isOpen()) {
            static_cast<void>(file.lock(std::chrono::milliseconds(0)));
            // Another program may have taken it for a leftover before it was locked.
            if (file.hasName(path)) return file;
            continue;
        }
        const RegularFile leftover = RegularFile::open(path, RegularFile::Access::read);
        const auto rest = std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (leftover.isOpen() && leftover.lock(rest) == RegularFile::Lock::held && !leftover.hasName(path)) continue;
        if (!removeFile(path)) return file;
    }
}

static WriteResult give(const RegularFile& file, const WholeFile& wanted) {
    if (!file.hasName(wanted.incomplete)) return WriteResult::refused;
    if (wanted.replaces)
        return replaceFile(wanted.incomplete, wanted.path) ? WriteResult::written : WriteResult::refused;
    const MoveResult moved = moveToNewName(wanted.incomplete, wanted.path);
    if (moved == MoveResult::taken) return WriteResult::nameTaken;
    return moved == MoveResult::moved ? WriteResult::written : WriteResult::refused;
}

WriteOutcome writeWholeFile(const WholeFile& wanted, std::string_view bytes) {
    RegularFile file = createInPlaceOfLeftover(wanted.incomplete, wanted.kind);
    if (!file.isOpen()) {
        return {saysFull(file.error()) ? WriteResult::ioError : WriteResult::refused, file.error(), {}};
    }
    if (wanted.accessLike != nullptr) file.takeAccessOf(*wanted.accessLike);
    const bool isWhole = file.overwrite(bytes) && file.flush();
    const FileStamp stamp = file.stamp();
    const WriteResult result = isWhole ? give(file, wanted) : WriteResult::ioError;
    if (result != WriteResult::written && file.hasName(wanted.incomplete)) removeFile(wanted.incomplete);
    return {result, file.error(), stamp};
}
