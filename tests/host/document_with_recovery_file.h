// A document in a folder of its own, and the names that its recovery file may have there.
#pragma once
#include <gtest/gtest.h>

#include <string>

#include "temporary_folder.h"

class DocumentWithRecoveryFile : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string document = folder.file("notes.words.tessary");
    std::string recovery = document + ".new-text";
    std::string incomplete = recovery + ".incomplete";
};
