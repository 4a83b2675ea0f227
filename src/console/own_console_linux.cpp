#include "console/own_console.h"

void Console::freeOwnConsole() {}
