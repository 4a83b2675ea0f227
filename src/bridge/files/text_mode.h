// The line ends that the system's text files have on the disk.
#pragma once
#include <string>

/// The bytes of a file with this text: each LF becomes CR LF on Windows.
[[nodiscard]] std::string diskBytesOf(std::string text);
/// The text of a file with these bytes: on Windows CR LF becomes LF, and the text ends at the first Ctrl+Z.
[[nodiscard]] std::string textOfDiskBytes(std::string bytes);
