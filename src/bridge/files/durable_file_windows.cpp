#include <windows.h>
// windows.h must come first
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string_view>

#include "bridge/files/durable_file.h"

namespace {
class Descriptor {
public:
    Descriptor(const std::filesystem::path& path, int flags) {
        const int mode = _S_IREAD | _S_IWRITE;
        if (_wsopen_s(&number_, path.c_str(), flags | _O_TEXT | _O_NOINHERIT, _SH_DENYNO, mode) != 0) number_ = -1;
    }
    ~Descriptor() {
        if (isOpen()) _close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] bool write(std::string_view text) const;
    [[nodiscard]] bool flush() const { return _commit(number_) == 0; }

private:
    int number_ = -1;
};
}  // namespace

bool Descriptor::write(std::string_view text) const {
    constexpr std::size_t atOnce = 1 << 20;
    while (!text.empty()) {
        const auto length = static_cast<unsigned>(std::min(text.size(), atOnce));
        const int count = _write(number_, text.data(), length);
        if (count <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

static WriteResult writeText(const Descriptor& file, const std::string& content) {
    if (!file.isOpen()) return errno == ENOSPC ? WriteResult::ioError : WriteResult::notCreated;
    return file.write(content) && file.flush() ? WriteResult::written : WriteResult::ioError;
}

WriteResult writeNewFile(const std::filesystem::path& path, const std::string& content) {
    removeFile(path);
    const WriteResult outcome = writeText(Descriptor(path, _O_WRONLY | _O_CREAT | _O_EXCL), content);
    if (outcome == WriteResult::ioError) removeFile(path);
    return outcome;
}

bool replaceFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

bool flushFile(const std::filesystem::path& path) {
    const Descriptor file(path, _O_WRONLY);
    return file.isOpen() && file.flush();
}

void removeFile(const std::filesystem::path& path) { DeleteFileW(path.c_str()); }
