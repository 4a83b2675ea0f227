// A lock that a run of the program holds until it ends, in whatever way: the system takes it away then.
#pragma once
#include <filesystem>
#include <memory>

/// Holds the lock while it lives.
using RunLock = std::shared_ptr<const void>;

/// Takes the lock that has its place at `file`, which is made and goes with the lock. Its folder must be there. Null
/// when another run has it, or when there is none to have. Never waits.
[[nodiscard]] RunLock takeRunLock(const std::filesystem::path& file);
