// Whatever message reaches the web-view library, it is taken apart without harm, and what the page sends comes through
// as the page wrote it. The library hands the arguments to the bound functions as they are found here.
#include <webview.h>

#include "bridge/bridge.h"
#include "bridge/envelope.h"
#include "bridge/files/documents.h"
#include "bridge/link_opener.h"
#include "bridge/request.h"
#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/json_text.h"
#include "support/require.h"

namespace fuzz_page_message {

static std::string part(const std::string& message, const char* key) {
    return webview::detail::json_parse(message, key, 0);
}

static void checkAnyMessage(const std::string& message) {
    static_cast<void>(part(message, "id"));
    static_cast<void>(part(message, "method"));
    const std::string arguments = part(message, "params");
    static const std::string refused = envelope(failed(invalidArguments), "data");
    const Request request(arguments);
    Documents documents;
    if (!request.string(0)) require(readFile(arguments, documents) == refused, "a read without a path is refused");
    if (!request.string(1)) require(writeFile(arguments, documents) == refused, "a write without a text is refused");
    try {
        static_cast<void>(openExternalUrl(arguments, [](const std::string& url) {
            require(isExternalLink(url), "only links are opened");
            return true;
        }));
    } catch (const std::runtime_error& refusal) {
        require(refusal.what()[0] != '\0', "a refusal has a reason");
    }
}

// The library gives up at U+007F. The page escapes it in documents, and refuses paths that hold it.
static std::string withoutDelete(std::string text) {
    std::erase(text, '\x7F');
    return text;
}

static void checkPageMessage(const std::string& path, const std::string& text) {
    const std::string arguments = "[" + writtenByAPage(path) + "," + writtenByAPage(text) + "]";
    const std::string message = R"({"id":"7","method":"writeFile","params":)" + arguments + "}";
    require(part(message, "id") == "7", "the call's number comes through");
    require(part(message, "method") == "writeFile", "the function's name comes through");
    require(part(message, "params") == arguments, "the arguments come through");
    const Request request(part(message, "params"));
    require(request.string(0) == repaired(path), "the path comes through");
    require(request.string(1) == repaired(text), "the text comes through");
}

FUZZ_TARGET(page_message) {
    checkAnyMessage(textOf(data, size));
    Fields fields(data, size);
    const std::string path = withoutDelete(fields.next());
    checkPageMessage(path, withoutDelete(fields.next()));
    return 0;
}

}  // namespace fuzz_page_message
