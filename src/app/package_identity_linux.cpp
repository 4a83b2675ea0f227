#include "app/host_scripts.h"

std::optional<std::string> currentPackageFullName() { return std::nullopt; }
