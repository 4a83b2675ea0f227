#include <windows.h>

#include "console/own_console.h"

void Console::freeOwnConsole() { FreeConsole(); }
