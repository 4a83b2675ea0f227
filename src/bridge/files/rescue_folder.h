// The folder of the user's own for texts that have no better place: $XDG_STATE_HOME/tessary (~/.local/state/tessary
// unless that is set) on Linux, %LOCALAPPDATA%\Tessary on Windows. It is made when the first text is written, and only
// its owner can read it. Whatever fails costs the text its place there and nothing else: no operation throws or asks.
// All of them block until the system has done its work.
#pragma once
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// Where this user's folder is, whether it is there or not; empty when the system names no place for it.
[[nodiscard]] std::filesystem::path userRescueFolder();

/// A text in the folder.
struct RescuedText {
    std::filesystem::path path;
    std::chrono::system_clock::time_point written;
};

/// A folder at `path` that is a link, no folder or another user's is never used. One of this user's that others may
/// read is closed to them first.
class RescueFolder {
public:
    explicit RescueFolder(std::filesystem::path path = userRescueFolder()) : path_(std::move(path)) {}

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Keeps `text` under `name`, a name without folders, in place of the text that had it: whoever reads it meanwhile,
    /// or after a power cut, finds one of the two whole. In text mode, like a document. Gives the file's path, or
    /// nothing when it could not be written; the older text is there then.
    [[nodiscard]] std::optional<std::filesystem::path> write(const std::filesystem::path& name,
                                                             const std::string& text) const;

    /// The same under a name that no text has: `stem` + `extension`, or with a number between them.
    [[nodiscard]] std::optional<std::filesystem::path> writeNew(const std::filesystem::path& stem,
                                                                const std::filesystem::path& extension,
                                                                const std::string& text) const;

    /// Removes the text with this name, and what a `write` of it that was cut off left behind.
    void remove(const std::filesystem::path& name) const;

    /// All whole texts, in the order of their names. Only regular files count.
    [[nodiscard]] std::vector<RescuedText> list() const;

private:
    std::filesystem::path path_;
};

/// Makes the folder and those above it, unless they are there. True when it now is this user's and nobody else can read
/// it.
[[nodiscard]] bool makePrivateFolder(const std::filesystem::path& path);

/// Whether the folder is there, and this user's.
[[nodiscard]] bool isOwnFolder(const std::filesystem::path& path);

/// When the regular file at `path` was written last; nothing for whatever else is there.
[[nodiscard]] std::optional<std::chrono::system_clock::time_point> timeOfFile(const std::filesystem::path& path);
