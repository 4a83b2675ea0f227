#include <gio/gio.h>

#include "app/window/program_launcher.h"
#include "bridge/text/glib_ownership_linux.h"

void openInOwnWindow(const std::filesystem::path& executable, const std::filesystem::path& file) {
    std::string program = executable.string();
    std::string argument = file.string();
    char* arguments[] = {program.data(), argument.data(), nullptr};
    g_spawn_async(nullptr, arguments, nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, nullptr);
}

void showFolder(const std::filesystem::path& folder) {
    const OwnedText address(g_filename_to_uri(folder.c_str(), nullptr, nullptr));
    if (address) g_app_info_launch_default_for_uri(address.get(), nullptr, nullptr);
}
