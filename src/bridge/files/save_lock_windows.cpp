#include <windows.h>
// windows.h must come first

#include "bridge/files/save_lock.h"

static constexpr DWORD patience = 2000;  // milliseconds

static void endTurn(HANDLE turn) {
    ReleaseMutex(turn);
    CloseHandle(turn);
}

// One turn for all documents: a lock on the file itself would keep other programs from reading it.
SaveTurn takeSaveTurn(const std::string& /*document*/) {
    const HANDLE turn = CreateMutexW(nullptr, FALSE, L"Local\\tessary-save");
    if (turn == nullptr) return nullptr;
    const DWORD outcome = WaitForSingleObject(turn, patience);
    if (outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED) return {turn, endTurn};
    CloseHandle(turn);
    return nullptr;
}
