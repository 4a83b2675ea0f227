#include <windows.h>
// windows.h must come first

#include "bridge/files/save_lock.h"

static void release(HANDLE mutex) {
    ReleaseMutex(mutex);
    CloseHandle(mutex);
}

// One lock for all documents: a lock on the file itself would keep other programs from reading it.
SaveLock acquireSaveLock(const std::string& /*document*/) {
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, L"Local\\tessary-save");
    if (mutex == nullptr) return nullptr;
    const DWORD outcome = WaitForSingleObject(mutex, static_cast<DWORD>(saveLockPatience.count()));
    if (outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED) return {mutex, release};
    CloseHandle(mutex);
    return nullptr;
}
