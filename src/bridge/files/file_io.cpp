#include "bridge/files/file_io.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "bridge/files/recovery_file.h"
#include "bridge/files/save_lock.h"
#include "bridge/text/native_path.h"

// A folder opens like an empty file on some systems.
static bool isFolder(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(pathFromNarrow(path), ignored);
}

Outcome readTextFile(const std::string& path) {
    try {
        std::ifstream file(path);
        if (!file.is_open() || isFolder(path)) return failed(fileNotFound);
        std::ostringstream content;
        content << file.rdbuf();
        file.close();
        return succeeded(std::move(content).str());
    } catch (const std::exception&) {
        return failed(fileReadFailed);
    }
}

// Opening for appending shows it without emptying the file.
static bool canBeWritten(const std::string& path) {
    return std::ofstream(path, std::ios::out | std::ios::app).is_open();
}

// What holds no document yet, or is a device, cannot lose one.
static bool holdsDocument(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(pathFromNarrow(path), ignored);
}

Outcome writeTextFile(const std::string& path, const std::string& content) {
    try {
        const SaveLock lock = acquireSaveLock(path);
        const bool replaces = holdsDocument(path);
        if (replaces && !canBeWritten(path)) return failed(fileWriteFailed);
        const RecoveryFile recovery = replaces ? writeRecoveryFile(path, content) : RecoveryFile::impossible;
        if (recovery == RecoveryFile::noSpace) return failed(fileWriteFailed);

        std::ofstream file(path, std::ios::out | std::ios::trunc);
        if (!file.is_open()) return failed(fileWriteFailed);
        file << content;
        file.close();
        if (recovery == RecoveryFile::written && file.good()) removeRecoveryFile(path);
        return succeeded();
    } catch (const std::exception&) {
        return failed(fileWriteFailed);
    }
}
