// Ownership of an open file or folder.
#pragma once
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>

/// Closed at the end of the scope.
class FileDescriptor {
public:
    /// What open() returned; below 0 when it failed.
    explicit FileDescriptor(int number) : number_(number) {}
    ~FileDescriptor() {
        if (isOpen()) close(number_);
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    [[nodiscard]] bool isOpen() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }

private:
    int number_;
};

/// Opens the folder that holds the file at `path`. Below 0 when it cannot be read.
[[nodiscard]] inline int openFolderOf(const std::filesystem::path& path) {
    const std::filesystem::path folder = path.parent_path();
    return open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}
