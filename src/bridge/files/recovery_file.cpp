#include "bridge/files/recovery_file.h"

#include "bridge/files/durable_file.h"
#include "bridge/text/native_path.h"

static std::filesystem::path recoveryFileOf(const std::string& document) {
    return pathFromNarrow(document + ".new-text");
}

RecoveryFile writeRecoveryFile(const std::string& document, const std::string& content) {
    const std::filesystem::path complete = recoveryFileOf(document);
    const std::filesystem::path incomplete = pathFromNarrow(document + ".new-text.incomplete");
    const WriteResult result = writeNewFile(incomplete, content);
    if (result == WriteResult::ioError) return RecoveryFile::noSpace;
    if (result == WriteResult::notCreated) return RecoveryFile::impossible;
    if (replaceFile(incomplete, complete)) return RecoveryFile::written;
    removeFile(incomplete);
    return RecoveryFile::impossible;
}

void removeRecoveryFile(const std::string& document) {
    if (flushFile(pathFromNarrow(document))) removeFile(recoveryFileOf(document));
}
