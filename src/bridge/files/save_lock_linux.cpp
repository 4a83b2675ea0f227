#include <sys/file.h>

#include <cerrno>
#include <thread>

#include "bridge/files/file_descriptor_linux.h"
#include "bridge/files/save_lock.h"

static constexpr std::chrono::milliseconds betweenTries{5};

/// False when there is nothing to wait for any more, or the time is over.
static bool lock(const FileDescriptor& folder) {
    const auto end = std::chrono::steady_clock::now() + saveLockPatience;
    while (flock(folder.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR) return false;
        if (std::chrono::steady_clock::now() > end) return false;
        std::this_thread::sleep_for(betweenTries);
    }
    return true;
}

// Locks the folder and not the document: that may not be there yet, or be another file after the save.
SaveLock acquireSaveLock(const std::string& document) {
    auto folder = std::make_shared<const FileDescriptor>(openFolderOf(document));
    return lock(*folder) ? folder : nullptr;
}
