// A document in a folder of its own, and the names that its recovery file may have there.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "bridge/files/recovery_file.h"
#include "temporary_folder.h"

class DocumentWithRecoveryFile : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string document = folder.file("notes.words.tessary");
    std::string recovery = document + ".new-text";
    std::string incomplete = recovery + ".incomplete";

    /// Writes the recovery file of the document, as a save does before it writes the document.
    [[nodiscard]] WriteOutcome write(std::string_view bytes) const {
        RegularFile file = RegularFile::open(document, RegularFile::Access::readAndWrite);
        return writeRecoveryFile(document, file, bytes, std::nullopt);
    }
};
