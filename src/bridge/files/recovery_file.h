// src/bridge/files/recovery_file.h: the text that is about to replace a document's, kept whole beside it, so that a
// save that is cut off leaves one whole text. "notes.words.tessary" has its copy in "notes.words.tessary.new-text",
// which is whole whenever it is there: it grows under the name "notes.words.tessary.new-text.incomplete".
#pragma once
#include <string>

enum class DocumentCopy {
    kept,
    impossible,  ///< the document's folder takes no such file, or the name is too long
    noSpace,     ///< the disk cannot hold the new text beside the document
};

/// Writes the copy to the disk. An older copy stays as it is until the new one is whole.
[[nodiscard]] DocumentCopy keepDocumentCopy(const std::string& document, const std::string& content);

/// Removes the copy once the document is known to be on the disk; without that knowledge the copy stays.
void dropDocumentCopy(const std::string& document);
