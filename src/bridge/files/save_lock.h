// Programs that save one document at the same moment do it one after the other, so that the document is the whole text
// of one of them. Only this program takes the lock; others read and write when they like.
#pragma once
#include <chrono>
#include <memory>
#include <string>

/// Holds the lock while it lives; empty when there was none to have.
using SaveLock = std::shared_ptr<const void>;

/// No save waits longer than this: a program that hangs must not keep another from saving.
inline constexpr std::chrono::milliseconds saveLockPatience{2000};

/// Blocks until this program may save `document`, a narrow path. Empty where the file system has no locks, and when the
/// wait was over first.
[[nodiscard]] SaveLock acquireSaveLock(const std::string& document);
