#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "app/app_metadata.h"
#include "app/command_line.h"
#include "app/host_scripts.h"
#include "app/process_limits.h"
#include "app/window/left_work_notice.h"
#include "app/window/native_web_view.h"
#include "app/window/program_launcher.h"
#include "app/window/save_notice.h"
#include "app/window/window_system.h"
#include "bridge/bridge.h"
#include "bridge/files/documents.h"
#include "bridge/text/native_path.h"
#include "console/log.h"
#include "console/tee_stream_buf.h"
#include "server/guarded_server.h"
#include "server/local_server.h"
#include "server/static_assets.h"

static void logStart(const std::filesystem::path& executable, const std::string& serverUrl) {
    const AppMetadata& metadata = AppMetadata::instance();
    const std::string version = metadata.version();
    logText("Application: {} v{}\n", metadata.name(), version);
    logText("Executable path: {}\n", utf8FromPath(executable));
    logText("Server URL: {}\n", serverUrl);
}

[[noreturn]] static void exitWithError(const std::string& reason) {
    Console::shutdown();
    stopServer();
    showStartupError(reason);
    std::exit(EXIT_FAILURE);
}

// One sentence for the user when no page can or may be shown.
static std::optional<std::string> startupError(const LoopbackGuard& loopbackGuard) {
    if (auto reason = prepareWindowSystem()) return reason;
    if (loopbackGuard.otherAddressIsTaken()) {
        return "Another program listens at port " + std::to_string(serverPort) +
               " of this computer, where it could pass for Tessary's own page: start Tessary again to get another "
               "port.";
    }
    return std::nullopt;
}

static bool isServedPath(std::string_view path) { return isServed(getEmbeddedFilesystem(), path); }

// A window that was opened on one of the copies does not offer the others once more.
static bool isInRescueFolder(const std::optional<std::string>& file) {
    return file && pathFromNarrow(*file).parent_path() == RescueFolder().path();
}

int main(int argc, char* argv[]) {
    prepareProcessLimits();
    const LaunchArgs args = parseCommandLine(argc, argv);

    const std::filesystem::path exePath = std::filesystem::canonical(pathFromNarrow(argv[0]));
    const std::filesystem::path logPath = std::filesystem::canonical(exePath).parent_path() / "debug.log";
    Console::init(narrowFromPath(logPath));

    static_cast<void>(AppMetadata::instance());
    setupServer(exePath);
    const std::unique_ptr<LoopbackGuard> loopbackGuard = startGuardedServer();
    const std::string serverUrl = getServerUrl();
    logStart(exePath, serverUrl);

    if (const auto reason = startupError(*loopbackGuard)) exitWithError(*reason);
    NativeWebView view;
    SaveNotice saveNotice(view.nativeWindow());
    Documents documents(saveNotice, RescueFolder());
    view.setTitle(AppMetadata::instance().displayName());
    injectHostInfo(view);
    bindFileFunctions(view, documents);
    bindLinkOpener(view);
    injectLaunchArgs(view, args);
    if (!view.restrictNavigation({serverUrl, isServedPath})) {
        exitWithError("Tessary cannot keep its window on its own page, so it shows none: start Tessary again.");
    }
    view.guardWork(serverUrl);
    view.navigate(serverUrl.empty() ? "about:blank" : serverUrl);
    view.setSize(800, 600);
    LeftWorkNotice leftWork(view.nativeWindow(), RescueFolder(),
                            {[exePath](const auto& file) { openInOwnWindow(exePath, file); }, showFolder});
    if (!isInRescueFolder(args.filePath)) leftWork.offer();
    view.run();

    Console::shutdown();
    stopServer();
    return 0;
}
