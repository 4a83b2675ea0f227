#include <windows.h>
// windows.h must come first

#include "bridge/files/run_lock.h"

RunLock takeRunLock(const std::filesystem::path& path) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) return nullptr;
    return {file, CloseHandle};
}
