// Whatever filter and extension a page asks for, the dialogs get lists that end where they should.
#include "bridge/dialog_arguments.h"
#include "bridge/file_dialogs.h"
#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/json_text.h"
#include "support/require.h"
#include "support/utf8_reference.h"

namespace fuzz_file_filter {

static std::vector<std::string> partsOf(const std::string& list) {
    std::vector<std::string> parts;
    for (std::size_t at = 0; at < list.size();) {
        const std::size_t end = list.find('\0', at);
        require(end != std::string::npos, "every part of a filter list is ended by a NUL");
        parts.push_back(list.substr(at, end - at));
        at = end + 1;
    }
    return parts;
}

static void checkFilter(const FileFilter& filter) {
    const std::vector<std::string> parts = partsOf(filterList(filter));
    const bool asked = !filter.name.empty() && !filter.pattern.empty();
    require(parts.size() == (asked ? 4u : 2u), "a filter list is made of pairs");
    for (const std::string& part : parts) require(!part.empty(), "no part ends the list early");
    require(parts[parts.size() - 2] == "All Files (*.*)" && parts.back() == "*.*", "all files can be shown");
    if (!asked) return;
    require(parts[0] == filter.name + " (" + filter.pattern + ")" && parts[1] == filter.pattern, "the asked-for first");
}

static void checkPatterns(const std::string& patterns) {
    std::string kept;
    for (const std::string& pattern : splitPatterns(patterns)) {
        require(!pattern.empty() && pattern.find(';') == std::string::npos, "a pattern is one pattern");
        kept += pattern;
    }
    std::string given = patterns;
    std::erase(given, ';');
    require(kept == given, "no pattern is lost");
}

static void checkExtension(const std::string& path, const std::string& extension) {
    const std::string result = withDefaultExtension(path, extension);
    const bool hasDot = path.find('.', path.rfind('/') + 1) != std::string::npos;
    const bool kept = extension.empty() || hasDot;
    require(result == (kept ? path : path + "." + extension), "only a name without an extension gets one");
    require(extension.find('/') != std::string::npos || withDefaultExtension(result, extension) == result,
            "an extension is added once");
}

static void checkRequest(const SaveRequest& wanted) {
    std::string text = "[";
    for (const std::string& argument :
         {wanted.defaultName, wanted.filter.name, wanted.filter.pattern, wanted.defaultExtension}) {
        text += (text.size() > 1 ? "," : "") + writtenByAPage(argument);
    }
    const SaveRequest read = saveDialogArguments(text + "]");
    require(read.defaultName == repaired(wanted.defaultName), "a suggested name arrives");
    require(read.filter.name == repaired(wanted.filter.name), "a filter's name arrives");
    require(read.filter.pattern == repaired(wanted.filter.pattern), "a pattern arrives");
    require(read.defaultExtension == repaired(wanted.defaultExtension), "an extension arrives");
}

FUZZ_TARGET(file_filter) {
    Fields fields(data, size);
    SaveRequest request;
    request.filter.name = fields.next();
    request.filter.pattern = fields.next();
    request.defaultName = fields.next();
    request.defaultExtension = fields.next();

    checkFilter(request.filter);
    checkPatterns(request.filter.pattern);
    checkExtension(request.defaultName, request.defaultExtension);
    checkRequest(request);
    return 0;
}

}  // namespace fuzz_file_filter
