#include <gtk/gtk.h>

#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "app/window/window_system.h"
#include "bridge/text/glib_ownership_linux.h"
#include "server/embedded_filesystem.h"

static OwnedObject<GdkPixbuf> embeddedPicture(const std::string& path) {
    const EmbeddedFile file = getEmbeddedFilesystem().openEmbedded(path);
    const std::unique_ptr<GBytes, decltype(&g_bytes_unref)> bytes(g_bytes_new_static(file.begin(), file.size()),
                                                                  g_bytes_unref);
    const OwnedObject<GInputStream> stream(g_memory_input_stream_new_from_bytes(bytes.get()));
    return OwnedObject<GdkPixbuf>(gdk_pixbuf_new_from_stream(stream.get(), nullptr, nullptr));
}

/// A program without its icon is still of use, so nothing that goes wrong here is reported.
static void setWindowIcon() {
    GList* pictures = nullptr;
    for (const char* size : {"16", "32", "48", "64", "128", "256"}) {
        try {
            auto picture = embeddedPicture(std::string("dist/app-icons/app-") + size + ".png");
            if (picture) pictures = g_list_append(pictures, picture.release());
        } catch (const std::exception&) {
            continue;
        }
    }
    gtk_window_set_default_icon_list(pictures);
    g_list_free_full(pictures, g_object_unref);
}

static bool hasRoomFor(std::uintmax_t bytes, std::filesystem::path folder) {
    std::error_code failure;
    while (!std::filesystem::exists(folder, failure) && folder.has_relative_path()) folder = folder.parent_path();
    const std::filesystem::space_info space = std::filesystem::space(folder, failure);
    return !failure && space.available >= bytes;
}

/// The graphics driver maps its cache from a file in the user's cache folder without reserving room for it. On a full
/// disk the process of the page dies of that before it shows anything.
static void doWithoutShaderCacheOnFullDisk() {
    static constexpr std::uintmax_t room = 16 << 20;
    if (!hasRoomFor(room, g_get_user_cache_dir())) g_setenv("MESA_SHADER_CACHE_DISABLE", "true", FALSE);
}

std::optional<std::string> prepareWindowSystem() {
    doWithoutShaderCacheOnFullDisk();
    if (gtk_init_check(nullptr, nullptr) == FALSE) {
        return "Tessary needs a display to open its window: start it in a desktop session, or under Xvfb.";
    }
    setWindowIcon();
    return std::nullopt;
}

void showStartupError(const std::string& sentence) {
    std::fputs((sentence + "\n").c_str(), stderr);
    if (gdk_display_get_default() == nullptr) return;
    GtkWidget* const box =
        gtk_message_dialog_new(nullptr, GTK_DIALOG_MODAL, GTK_MESSAGE_ERROR, GTK_BUTTONS_CLOSE, "%s", sentence.c_str());
    gtk_window_set_title(GTK_WINDOW(box), "Tessary");
    gtk_dialog_run(GTK_DIALOG(box));
    gtk_widget_destroy(box);
}
