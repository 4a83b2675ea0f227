// Whatever text a document is saved with, reading it gives that text again.
#include "bridge/bridge.h"
#include "bridge/envelope.h"
#include "bridge/files/documents.h"
#include "host/temporary_folder.h"
#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/json_text.h"
#include "support/require.h"
#include "support/utf8_reference.h"

namespace fuzz_file_text {

FUZZ_TARGET(file_text) {
    static const TemporaryFolder folder;
    static const std::string path = folder.file("file");
    static const std::string quotedPath = jsonString(path);
    static const std::string success = envelope(succeeded(), "data");
    static Documents documents;
    const std::string text = textOf(data, size);

    require(documents.write(path, text).success, "a text is written");
    require(bytesOf(path) == text, "a text is written byte by byte");
    const Outcome read = documents.read(path);
    require(read.success && read.payload == text && read.error.empty(), "a text is read byte by byte");
    require(readFile("[" + quotedPath + "]", documents) == envelope(succeeded(text), "data"),
            "the page is given the text");

    require(writeFile("[" + quotedPath + "," + writtenByAPage(text) + "]", documents) == success,
            "the page's text is written");
    require(bytesOf(path) == repaired(upToNul(text)), "the page's text is on disk, up to its first NUL");
    return 0;
}

}  // namespace fuzz_file_text
