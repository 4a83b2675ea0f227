// The text that is about to replace a document's, kept whole beside it: a journal by which a save that was cut off is
// finished later. "notes.words.tessary" has its recovery file in "notes.words.tessary.new-text", which is whole
// whenever it is there: it grows under the name "notes.words.tessary.new-text.incomplete".
#pragma once
#include <filesystem>
#include <optional>
#include <string_view>

#include "bridge/files/regular_file.h"
#include "bridge/files/whole_file.h"

[[nodiscard]] std::filesystem::path recoveryFileOf(const std::filesystem::path& document);

/// Where a file grows that will be `path`.
[[nodiscard]] std::filesystem::path incompleteFileOf(const std::filesystem::path& path);

/// Writes the recovery file of the document to the disk, with the document's permissions. `document` is locked by the
/// caller. An older recovery file whose text stands nowhere else is moved aside, to "notes.words.tessary.new-text.1" or
/// the next number that is free; `superseded` is one that need not be kept.
[[nodiscard]] WriteOutcome writeRecoveryFile(const std::filesystem::path& path, RegularFile& document,
                                             std::string_view bytes, const std::optional<FileStamp>& superseded);

/// Removes the recovery file, unless it has become another one than that with this stamp. To be called when the
/// document is known to be on the disk.
void removeRecoveryFile(const std::filesystem::path& path, const FileStamp& written);

/// Finishes a save that was cut off: a document that is the beginning of its recovery file gets the rest of it, and one
/// that is the same loses the recovery file. Whatever else is there stays as it is: another text, what is no regular
/// file or belongs to another user than the document, a document that cannot be written or is just being saved. `name`
/// is what the user calls the document, `path` where that leads to.
void finishCutOffSave(const std::filesystem::path& name, const std::filesystem::path& path);
