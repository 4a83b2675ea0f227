// src/bridge/file_io.h: whole documents from and to disk. Paths are narrow strings in the process's code page and go to
// the system as they are; files are opened in text mode and shared with other programs. Both block until done.
#pragma once
#include <string>

#include "bridge/envelope.h"

/// The file's text as payload, or "file-not-found" for whatever keeps it from being opened (folders count as such), or
/// "file-read-failed".
[[nodiscard]] Outcome readTextFile(const std::string& path);

/// Empties or creates the file, then writes `content`. Once the file is open the answer is success: a full disk is not
/// noticed. Otherwise "file-write-failed".
[[nodiscard]] Outcome writeTextFile(const std::string& path, const std::string& content);
