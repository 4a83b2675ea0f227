// Gives back a console window that the program made for itself.
#pragma once

namespace Console {

/// Detaches the process from its console. Does nothing on systems where a program cannot own one.
void freeOwnConsole();

}  // namespace Console
