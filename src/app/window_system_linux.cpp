#include <gtk/gtk.h>

#include <cstdio>
#include <exception>
#include <memory>
#include <string>

#include "app/window_system.h"
#include "bridge/glib_ownership_linux.h"
#include "server/embedded_filesystem.h"

static OwnedObject<GdkPixbuf> embeddedPicture(const std::string& path) {
    const EmbeddedFile file = getEmbeddedFilesystem().openEmbedded(path);
    const std::unique_ptr<GBytes, decltype(&g_bytes_unref)> bytes(g_bytes_new_static(file.begin(), file.size()),
                                                                  g_bytes_unref);
    const OwnedObject<GInputStream> stream(g_memory_input_stream_new_from_bytes(bytes.get()));
    return OwnedObject<GdkPixbuf>(gdk_pixbuf_new_from_stream(stream.get(), nullptr, nullptr));
}

/// A program without its icon is still of use, so nothing that goes wrong here is told.
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

std::optional<std::string> prepareWindowSystem() {
    if (gtk_init_check(nullptr, nullptr) == FALSE) {
        return "Tessary needs a display to open its window: start it in a desktop session, or under Xvfb.";
    }
    setWindowIcon();
    return std::nullopt;
}

void tellUser(const std::string& sentence) { std::fputs((sentence + "\n").c_str(), stderr); }
