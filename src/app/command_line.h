// Turns the process's arguments into what the page gets at start.
#pragma once
#include <optional>
#include <string>

/// What the command line asked for. Either `ok`, with or without a file, or not `ok` and an `error` to show.
struct LaunchArgs {
    bool ok = true;
    std::string error;                    ///< for the user, may span lines; empty when `ok`
    std::optional<std::string> filePath;  ///< absolute, in the file-system code page (not UTF-8)
};

/// Accepts at most one file name. `argv` is borrowed for the call only.
/// Misuse comes back in `error`, so that the window still opens and can show it; --help and --version print to the
/// standard output and end the process with code 0.
/// Throws std::filesystem::filesystem_error when the system cannot look the name up at all.
[[nodiscard]] LaunchArgs parseCommandLine(int argc, const char* const argv[]);
