#include "bridge/files/text_mode.h"

std::string diskBytesOf(std::string text) { return text; }

std::string textOfDiskBytes(std::string bytes) { return bytes; }
