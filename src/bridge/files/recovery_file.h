// The text that is about to replace a document's, kept whole beside it, so that a save that is cut off leaves one whole
// text. "notes.words.tessary" has its recovery file in "notes.words.tessary.new-text", which is whole whenever it is
// there: it grows under the name "notes.words.tessary.new-text.incomplete".
#pragma once
#include <string>

enum class RecoveryFile {
    written,
    impossible,  ///< the document's folder takes no such file, or the name is too long
    noSpace,     ///< the disk cannot hold the new text beside the document
};

/// Writes the recovery file to the disk. An older one stays as it is until the new one is whole.
[[nodiscard]] RecoveryFile writeRecoveryFile(const std::string& document, const std::string& content);

/// Removes the recovery file once the document is known to be on the disk; without that knowledge the file stays.
void removeRecoveryFile(const std::string& document);
