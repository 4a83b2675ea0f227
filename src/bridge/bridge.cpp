#include "bridge/bridge.h"

#include <optional>

#include "bridge/dialog_arguments.h"
#include "bridge/envelope.h"
#include "bridge/file_dialogs.h"
#include "bridge/files/documents.h"
#include "bridge/link_opener.h"
#include "bridge/request.h"
#include "bridge/web_view.h"

static std::string dialogAnswer(const std::optional<std::string>& path) {
    return envelope(path ? succeeded(*path) : failed(userCancelled), "path");
}

static std::string fileAnswer(const Outcome& outcome) { return envelope(outcome, "data"); }

std::string showOpenDialog(const std::string& request) {
    return dialogAnswer(askForFileToOpen(openDialogArguments(request)));
}

std::string showSaveDialog(const std::string& request) {
    return dialogAnswer(askForFileToSave(saveDialogArguments(request)));
}

std::string readFile(const std::string& request, Documents& documents) {
    const auto path = Request(request).string(0);
    if (!path) return fileAnswer(failed(invalidArguments));
    return fileAnswer(documents.read(*path));
}

std::string writeFile(const std::string& requestText, Documents& documents) {
    const Request request(requestText);
    const auto path = request.string(0);
    const auto content = request.string(1);
    if (!path || !content) return fileAnswer(failed(invalidArguments));
    return fileAnswer(documents.write(*path, *content));
}

void bindFileFunctions(WebView& view, Documents& documents) {
    view.bind("showOpenDialog", showOpenDialog);
    view.bind("showSaveDialog", showSaveDialog);
    view.bind("readFile", [&documents](const std::string& request) { return readFile(request, documents); });
    view.bind("writeFile", [&documents](const std::string& request) { return writeFile(request, documents); });
}

void bindLinkOpener(WebView& view) {
    view.bindThrowing("openExternalUrl", [](const std::string& request) { return openExternalUrl(request); });
}
