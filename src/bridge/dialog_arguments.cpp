#include "bridge/dialog_arguments.h"

#include "bridge/request.h"

static void replaceIfGiven(std::string& value, const Request& request, std::size_t index) {
    if (auto given = request.string(index)) value = *std::move(given);
}

static bool holdsNothing(const std::string& request) { return request.empty() || request == "[]"; }

FileFilter openDialogArguments(const std::string& request) {
    FileFilter filter;
    if (holdsNothing(request)) return filter;
    const Request arguments(request);
    replaceIfGiven(filter.name, arguments, 0);
    replaceIfGiven(filter.pattern, arguments, 1);
    return filter;
}

SaveRequest saveDialogArguments(const std::string& request) {
    SaveRequest save;
    if (holdsNothing(request)) return save;
    const Request arguments(request);
    replaceIfGiven(save.defaultName, arguments, 0);
    replaceIfGiven(save.filter.name, arguments, 1);
    replaceIfGiven(save.filter.pattern, arguments, 2);
    replaceIfGiven(save.defaultExtension, arguments, 3);
    return save;
}
