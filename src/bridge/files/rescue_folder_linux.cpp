#include "bridge/files/rescue_folder.h"

#include <glib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "bridge/files/file_descriptor_linux.h"

namespace fs = std::filesystem;

fs::path userRescueFolder() {
    const char* state = std::getenv("XDG_STATE_HOME");
    // A relative path there means nothing, by the rules for these variables.
    if (state != nullptr && *state == '/') return fs::path(state) / "tessary";
    const char* home = g_get_home_dir();
    return home != nullptr && *home == '/' ? fs::path(home) / ".local/state/tessary" : fs::path();
}

static bool makeFolder(const fs::path& path) {
    if (mkdir(path.c_str(), S_IRWXU) == 0 || errno == EEXIST) return true;
    const bool parentIsMissing = errno == ENOENT && path.has_relative_path();
    return parentIsMissing && makeFolder(path.parent_path()) && mkdir(path.c_str(), S_IRWXU) == 0;
}

/// The folder, unless it is a link, no folder or another user's.
static int openOwnFolder(const fs::path& path, struct stat& status) {
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0) return folder;
    if (fstat(folder, &status) == 0 && status.st_uid == geteuid()) return folder;
    close(folder);
    return -1;
}

bool makePrivateFolder(const fs::path& path) {
    if (!makeFolder(path)) return false;
    struct stat status{};
    const FileDescriptor folder(openOwnFolder(path, status));
    if (!folder.isOpen()) return false;
    return (status.st_mode & (S_IRWXG | S_IRWXO)) == 0 || fchmod(folder.number(), S_IRWXU) == 0;
}

bool isOwnFolder(const fs::path& path) {
    struct stat status{};
    return FileDescriptor(openOwnFolder(path, status)).isOpen();
}

std::optional<std::chrono::system_clock::time_point> timeOfFile(const fs::path& path) {
    struct stat status{};
    if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    const auto sinceEpoch =
        std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
    return std::chrono::system_clock::time_point(
        std::chrono::duration_cast<std::chrono::system_clock::duration>(sinceEpoch));
}
