#include "bridge/files/recovery_file.h"

#include "bridge/files/durable_file.h"

static std::string recoveryFileOf(const std::string& document) { return document + ".new-text"; }

RecoveryFile writeRecoveryFile(const std::string& document, const std::string& content) {
    const std::string complete = recoveryFileOf(document);
    const std::string incomplete = complete + ".incomplete";
    const WriteResult result = writeNewFile(incomplete, content);
    if (result == WriteResult::ioError) return RecoveryFile::noSpace;
    if (result == WriteResult::notCreated) return RecoveryFile::impossible;
    if (replaceFile(incomplete, complete)) return RecoveryFile::written;
    removeFile(incomplete);
    return RecoveryFile::impossible;
}

void removeRecoveryFile(const std::string& document) {
    if (flushFile(document)) removeFile(recoveryFileOf(document));
}
