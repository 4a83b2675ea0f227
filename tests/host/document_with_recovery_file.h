// tests/host/document_with_copy.h: a document in a folder of its own, and the names that its copy may have there.
#pragma once
#include <gtest/gtest.h>

#include <string>

#include "temporary_folder.h"

class DocumentWithCopy : public testing::Test {
protected:
    TemporaryFolder folder;
    std::string document = folder.file("notes.words.tessary");
    std::string copy = document + ".new-text";
    std::string incomplete = copy + ".incomplete";
};
