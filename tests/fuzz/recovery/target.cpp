// Whatever stands in a document and in the recovery file beside it, a save that was cut off is finished, and no other
// text is touched.
#include <filesystem>

#include "bridge/files/documents.h"
#include "host/temporary_folder.h"
#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/require.h"

namespace fuzz_recovery {

FUZZ_TARGET(recovery) {
    static const TemporaryFolder folder;
    const std::string document = folder.file("document");
    const std::string recovery = document + ".new-text";
    Fields fields(data, size);
    const std::string present = fields.next();
    // Mostly a text that begins as the document does: others are of one kind.
    const std::string next = fields.next();
    const std::string text = size % 4 == 0 ? next : present + next;
    putBytes(document, present);
    putBytes(recovery, text);

    Documents documents;
    const Outcome read = documents.read(document);
    require(read.success, "a document beside a recovery file can be read");
    if (text.starts_with(present)) {
        require(read.payload == text, "a save that was cut off is finished");
        require(bytesOf(document) == text, "the document holds the whole text");
        require(!std::filesystem::exists(recovery), "a recovery file whose text is in the document goes");
    } else {
        require(read.payload == present, "a document that is no part of the recovery text is as it was");
        require(bytesOf(document) == present, "it is left alone");
        require(bytesOf(recovery) == text, "and so is the recovery text");
    }
    std::filesystem::remove(recovery);
    return 0;
}

}  // namespace fuzz_recovery
