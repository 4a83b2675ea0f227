// ui_thread.h: the thread that called the runtime in. Every call of the program's handlers is made on it.
#pragma once
#include <windows.h>

#include <functional>

/// Makes the calling thread the UI thread. `module` is this DLL.
void becomeUiThread(HMODULE module);

/// Runs `task` in the UI thread's message loop, also when that is the loop of a dialog. May be called on any thread.
void onUiThread(std::function<void()> task);
