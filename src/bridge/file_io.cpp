#include "bridge/file_io.h"

#include <exception>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "bridge/narrow_path.h"

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

Outcome writeTextFile(const std::string& path, const std::string& content) {
    try {
        std::ofstream file(path, std::ios::out | std::ios::trunc);
        if (!file.is_open()) return failed(fileWriteFailed);
        file << content;
        file.close();
        return succeeded();
    } catch (const std::exception&) {
        return failed(fileWriteFailed);
    }
}
