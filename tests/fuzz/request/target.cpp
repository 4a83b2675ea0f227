// Whatever a page sends as the arguments of a call, it is read, defaulted or refused, and nothing else.
#include "bridge/request.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "bridge/bridge.h"
#include "bridge/dialog_arguments.h"
#include "bridge/envelope.h"
#include "bridge/files/documents.h"
#include "bridge/link_opener.h"
#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/require.h"

namespace fuzz_request {

static std::vector<std::string> launched;

static bool recordLaunch(const std::string& url) {
    launched.push_back(url);
    return url.size() % 2 == 0;
}

static void checkArguments(const Request& request) {
    require(request.isArray() || request.size() == 0, "what is no array has no arguments");
    for (std::size_t i = 0; i < std::min<std::size_t>(request.size(), 100); ++i) {
        const auto argument = request.string(i);
        require(!argument || argument->find('\0') == std::string::npos, "an argument ends at its first NUL");
    }
    require(!request.string(request.size()), "there is no argument after the last");
    require(!request.string(SIZE_MAX), "there is no argument far after the last");
}

// Only requests that are refused are handed over: the others would touch files of whatever name.
static void checkRefusals(const Request& request, const std::string& text) {
    static const std::string refused = envelope(failed(invalidArguments), "data");
    Documents documents;
    if (!request.string(0)) require(readFile(text, documents) == refused, "a read without a path is refused");
    if (!request.string(0) || !request.string(1))
        require(writeFile(text, documents) == refused, "a write needs path and text");
}

static void checkDialogs(const Request& request, const std::string& text) {
    const FileFilter filter = openDialogArguments(text);
    require(filter.name == request.string(0).value_or("All Files"), "a filter's name is the given one or the default");
    require(filter.pattern == request.string(1).value_or("*.*"), "a filter's pattern is the given one or the default");
    const SaveRequest save = saveDialogArguments(text);
    require(save.defaultName == request.string(0).value_or(""), "a suggested name is the given one or none");
    require(save.filter.name == request.string(1).value_or("All Files"), "a saved type's name likewise");
    require(save.filter.pattern == request.string(2).value_or("*.*"), "a saved type's pattern likewise");
    require(save.defaultExtension == request.string(3).value_or(""), "a default extension likewise");
}

static bool mayBeLaunched(const std::string& url) {
    return url.starts_with("http://") || url.starts_with("https://") || url.starts_with("mailto:");
}

static void checkLinks(const Request& request, const std::string& text) {
    launched.clear();
    try {
        require(openExternalUrl(text, recordLaunch) == "null", "an opened link answers null");
        require(launched.size() == 1, "a link is opened once");
    } catch (const std::runtime_error& refusal) {
        require(refusal.what()[0] != '\0', "a refusal has a reason");
    }
    for (const std::string& url : launched) {
        require(mayBeLaunched(url), "only links of three kinds are opened");
        require(url == request.string(0), "the link that is opened is the one that was asked for");
    }
}

FUZZ_TARGET(request) {
    const std::string text = textOf(data, size);
    const Request request(text);
    checkArguments(request);
    checkRefusals(request, text);
    checkDialogs(request, text);
    checkLinks(request, text);
    return 0;
}

}  // namespace fuzz_request
