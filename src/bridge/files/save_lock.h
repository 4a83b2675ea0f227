// src/bridge/files/save_lock.h: programs that save one document at the same moment do it one after the other, so that
// the document is the whole text of one of them. Only this program takes turns; others read and write when they like.
#pragma once
#include <memory>
#include <string>

/// Holds the turn while it lives; empty when there was none to have.
using SaveTurn = std::shared_ptr<const void>;

/// Waits for the turn to save `document`, a narrow path, but not longer than two seconds: a program that hangs must not
/// keep another from saving. There is no turn where the file system offers none.
[[nodiscard]] SaveTurn takeSaveTurn(const std::string& document);
