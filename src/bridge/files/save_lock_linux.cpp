#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <thread>

#include "bridge/files/save_lock.h"

static constexpr std::chrono::seconds patience{2};
static constexpr std::chrono::milliseconds betweenTries{5};

namespace {
// The folder and not the document: that may not be there yet, or be another file after the save.
class LockedFolder {
public:
    explicit LockedFolder(const std::filesystem::path& folder)
        : number_(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}
    ~LockedFolder() {
        if (number_ >= 0) close(number_);
    }
    LockedFolder(const LockedFolder&) = delete;
    LockedFolder& operator=(const LockedFolder&) = delete;

    /// False when there is nothing to wait for any more, or the time is over.
    [[nodiscard]] bool lock() const {
        const auto end = std::chrono::steady_clock::now() + patience;
        while (flock(number_, LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK && errno != EINTR) return false;
            if (std::chrono::steady_clock::now() > end) return false;
            std::this_thread::sleep_for(betweenTries);
        }
        return true;
    }

private:
    int number_;
};
}  // namespace

SaveTurn takeSaveTurn(const std::string& document) {
    auto folder = std::make_shared<const LockedFolder>(std::filesystem::path(document).parent_path());
    return folder->lock() ? folder : nullptr;
}
