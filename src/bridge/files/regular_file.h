// A regular file that is open: the only way in which documents and what stands beside them are opened. Nothing else is
// ever opened or waited for, be it a folder, a device or a pipe; other programs may read and write the file meanwhile.
// What fails leaves its reason in `error`. All bytes are as they are on the disk. Operations block until the system is
// done.
#pragma once
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

/// Which file it is and, as far as the system says so without reading it, which bytes it holds.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t number = 0;  ///< of the file on its device: the same for all its links
    std::uint64_t size = 0;
    std::int64_t modified = 0;  ///< in the system's own unit
    std::int64_t changed = 0;   ///< also when only owner, permissions or links changed

    bool operator==(const FileStamp&) const = default;
};

class RegularFile {
public:
    enum class Access { read, readAndWrite };
    /// Who may use a new file: its owner only, or whoever the user lets use new files.
    enum class NewFile { ownersOnly, ordinary };

    /// Opens a file that is there, as it is. With `readAndWrite` also one that may be written only.
    [[nodiscard]] static RegularFile open(const std::filesystem::path& path, Access access);
    /// Makes an empty file under a name that nothing has.
    [[nodiscard]] static RegularFile create(const std::filesystem::path& path, NewFile kind);

    RegularFile(RegularFile&&) noexcept;
    RegularFile& operator=(RegularFile&&) noexcept;
    /// Closes the file, and gives up its lock.
    ~RegularFile();

    [[nodiscard]] bool isOpen() const { return handle_ != nullptr; }
    /// Why the last operation that failed did.
    [[nodiscard]] std::error_code error() const { return error_; }

    /// Whether the name is still, or by now, this file's.
    [[nodiscard]] bool hasName(const std::filesystem::path& path) const;
    [[nodiscard]] FileStamp stamp() const;
    [[nodiscard]] bool hasSeveralNames() const;
    [[nodiscard]] bool hasSameOwnerAs(const RegularFile& other) const;

    enum class Lock {
        held,  ///< until the file is closed
        busy,  ///< another program held it for all of the time
        none,  ///< the file system has no locks
    };
    /// Waits for the file's lock, which belongs to the file and not to one of its names. Only this program takes it;
    /// others read and write as before.
    [[nodiscard]] Lock lock(std::chrono::milliseconds patience) const;

    /// Gives the file owner and permissions of the other one. What cannot be given becomes narrower, never wider.
    void takeAccessOf(const RegularFile& other);

    /// All that the file holds.
    [[nodiscard]] std::optional<std::string> bytes();
    /// Writes over all that the file holds. A failure leaves some first part of `bytes`.
    [[nodiscard]] bool overwrite(std::string_view bytes);
    /// Writes at the file's end.
    [[nodiscard]] bool append(std::string_view bytes);
    /// Waits until all that was written is on the disk.
    [[nodiscard]] bool flush();

private:
    struct Handle;
    RegularFile(std::unique_ptr<Handle> handle, std::error_code error);

    /// Remembers the system's last error. Always false.
    bool fail();
    [[nodiscard]] bool write(std::string_view bytes);

    std::unique_ptr<Handle> handle_;
    std::error_code error_;
};

/// Whether it says that nothing has the name, or that something has it.
[[nodiscard]] bool saysMissing(const std::error_code& error);
[[nodiscard]] bool saysTaken(const std::error_code& error);
/// Whether it says that the disk, a quota or a limit takes no more.
[[nodiscard]] bool saysFull(const std::error_code& error);

/// What the system says of an error to its user, as UTF-8, without a full stop.
[[nodiscard]] std::string inTheSystemsWords(const std::error_code& error);
