// Finds out who draws on this computer.
#pragma once
#include <filesystem>

/// Whether this user may have pictures drawn by a graphics processor. `devices` is where the system lists them.
[[nodiscard]] bool hasGraphicsProcessor(const std::filesystem::path& devices = "/dev/dri");
