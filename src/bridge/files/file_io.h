// Whole documents from and to disk. Paths are narrow strings in the process's code page and go to the system as they
// are; files are opened in text mode and shared with other programs. Both block until done.
#pragma once
#include <string>

#include "bridge/files/outcome.h"

/// The file's text as payload, or "file-not-found" for whatever keeps it from being opened (folders count as such), or
/// "file-read-failed".
[[nodiscard]] Outcome readTextFile(const std::string& path);

/// Empties or creates the file, then writes `content`. While a document that was there before is replaced, the new text
/// also stands in a recovery file beside it (recovery_file.h), which goes when the document is whole on the disk. Once
/// the file is open the answer is success: a disk that is full by then is not noticed, but the recovery file stays.
/// "file-write-failed" when the file cannot be opened, or when the disk has no room for the recovery file; the document
/// is then as it was.
[[nodiscard]] Outcome writeTextFile(const std::string& path, const std::string& content);
