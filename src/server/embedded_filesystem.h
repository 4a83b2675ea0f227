// The read-only tree of files that is compiled into the program. Paths use "/" and are relative to the root:
// "package.json", "dist/index.html". They are compared byte by byte.
#pragma once
#include <cstddef>
#include <list>
#include <map>
#include <string>
#include <string_view>

/// The bytes of one embedded file as the tree keeps them; a zero byte that is not part of the file lies at `end`.
struct EmbeddedFileData {
    const char* begin;
    const char* end;
};

class EmbeddedDirectory;

/// Refers to a file or a directory of the tree without owning it.
class EmbeddedEntry {
public:
    EmbeddedEntry() = default;
    explicit EmbeddedEntry(const EmbeddedFileData& file) : file_(&file), isFile_(true) {}
    explicit EmbeddedEntry(const EmbeddedDirectory& directory) : directory_(&directory) {}

    [[nodiscard]] bool isFile() const { return isFile_; }
    /// Null for a directory.
    [[nodiscard]] const EmbeddedFileData* file() const { return isFile_ ? file_ : nullptr; }
    /// Null for a file.
    [[nodiscard]] const EmbeddedDirectory* directory() const { return isFile_ ? nullptr : directory_; }

private:
    union {
        const EmbeddedFileData* file_;
        const EmbeddedDirectory* directory_ = nullptr;
    };
    bool isFile_ = false;
};

/// One folder of the tree: owns its files' descriptions and its subfolders, whose addresses never change.
class EmbeddedDirectory {
public:
    /// Adds a file of `size` bytes; `begin` points to static data. Gives the entry now filed under `name`, which is the
    /// earlier one when the name was taken.
    const EmbeddedEntry* addFile(const std::string& name, const char* begin, std::size_t size);
    /// Adds an empty subfolder.
    EmbeddedDirectory& addDirectory(const std::string& name);
    /// The entry of a direct child; null when there is none.
    [[nodiscard]] const EmbeddedEntry* child(const std::string& name) const;

private:
    std::list<EmbeddedFileData> files_;
    std::list<EmbeddedDirectory> directories_;
    std::map<std::string, EmbeddedEntry> children_;
};

/// Every path of the tree, the root under "".
using RootIndex = std::map<std::string, const EmbeddedEntry*>;

/// Builds the tree; generated at build time. Each call adds the files to their folders once more, so it is reached only
/// through `getEmbeddedFilesystem`.
RootIndex& getRootIndex();

/// An opened file. Points into static data: valid until exit, never freed.
class EmbeddedFile {
public:
    explicit EmbeddedFile(const EmbeddedFileData& data) : begin_(data.begin), end_(data.end) {}
    [[nodiscard]] const char* begin() const { return begin_; }
    [[nodiscard]] const char* end() const { return end_; }
    [[nodiscard]] std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }

private:
    const char* begin_;
    const char* end_;
};

/// A handle onto the tree; copies share it. Safe to use from any thread.
class EmbeddedFilesystem {
public:
    explicit EmbeddedFilesystem(const RootIndex& index) : index_(&index) {}

    /// The entry at `path`, in any spelling that `normalizePath` accepts; null when there is none.
    [[nodiscard]] const EmbeddedEntry* findEntry(const std::string& path) const;
    /// Throws std::system_error (no_such_file_or_directory, with `path` as its message) for a missing path or a folder.
    [[nodiscard]] EmbeddedFile openEmbedded(const std::string& path) const;

private:
    const RootIndex* index_;
};

/// The program's tree, built on the first call.
[[nodiscard]] EmbeddedFilesystem getEmbeddedFilesystem();

/// Drops leading and trailing slashes and collapses runs of them. "." and ".." mean nothing here.
[[nodiscard]] std::string normalizePath(std::string_view path);
