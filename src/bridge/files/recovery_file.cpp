#include "bridge/files/recovery_file.h"

#include "bridge/files/durable_file.h"

static std::string copyOf(const std::string& document) { return document + ".new-text"; }

DocumentCopy keepDocumentCopy(const std::string& document, const std::string& content) {
    const std::string copy = copyOf(document);
    const std::string incomplete = copy + ".incomplete";
    const NewFile outcome = writeNewFile(incomplete, content);
    if (outcome == NewFile::cutShort) return DocumentCopy::noSpace;
    if (outcome == NewFile::notCreated) return DocumentCopy::impossible;
    if (replaceFile(incomplete, copy)) return DocumentCopy::kept;
    removeFile(incomplete);
    return DocumentCopy::impossible;
}

void dropDocumentCopy(const std::string& document) {
    if (flushFile(document)) removeFile(copyOf(document));
}
