#include <gtk/gtk.h>

#include <filesystem>
#include <system_error>

#include "bridge/file_dialogs.h"
#include "bridge/text/glib_ownership_linux.h"

using OwnedDialog = OwnedObject<GtkFileChooserNative>;

// GTK gives its dialogs no titles of their own; these are the ones that Windows gives.
static constexpr const char* openTitle = "Open";
static constexpr const char* saveTitle = "Save As";

// "*.*" means every file to users of this filter, also those whose names have no dot.
static const char* globOf(const std::string& pattern) { return pattern == "*.*" ? "*" : pattern.c_str(); }

static void chooseFilter(GtkFileChooser* chooser, gint position) {
    GSList* entries = gtk_file_chooser_list_filters(chooser);
    gtk_file_chooser_set_filter(chooser, GTK_FILE_FILTER(g_slist_nth_data(entries, static_cast<guint>(position))));
    g_slist_free(entries);
}

static gint chosenFilter(GtkFileChooser* chooser) {
    GSList* entries = gtk_file_chooser_list_filters(chooser);
    const gint position = g_slist_index(entries, gtk_file_chooser_get_filter(chooser));
    g_slist_free(entries);
    return position;
}

static void addFilters(GtkFileChooser* chooser, const FileFilter& filter) {
    for (const FilterChoice& choice : filterChoices(filter)) {
        GtkFileFilter* entry = gtk_file_filter_new();
        gtk_file_filter_set_name(entry, choice.text.c_str());
        for (const std::string& pattern : splitPatterns(choice.pattern)) {
            gtk_file_filter_add_pattern(entry, globOf(pattern));
        }
        gtk_file_chooser_add_filter(chooser, entry);  // takes ownership
    }
    chooseFilter(chooser, 0);
}

static OwnedDialog makeDialog(const char* title, GtkFileChooserAction action, const FileFilter& filter) {
    OwnedDialog dialog(gtk_file_chooser_native_new(title, nullptr, action, nullptr, nullptr));
    addFilters(GTK_FILE_CHOOSER(dialog.get()), filter);
    return dialog;
}

/// The chosen path in UTF-8; nothing when the file's name is not valid UTF-8, since the page could not name it.
static std::optional<std::string> chosenPath(GtkFileChooser* chooser) {
    const OwnedText name(gtk_file_chooser_get_filename(chooser));
    if (!name) return std::nullopt;
    const OwnedText utf8(g_filename_to_utf8(name.get(), -1, nullptr, nullptr, nullptr));
    if (!utf8) return std::nullopt;
    return std::string(utf8.get());
}

static bool exists(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

/// Shows a message box until it is answered, and destroys it.
static gint answerTo(GtkWidget* box, const char* title) {
    gtk_window_set_title(GTK_WINDOW(box), title);
    gtk_window_set_position(GTK_WINDOW(box), GTK_WIN_POS_CENTER);
    gtk_window_set_keep_above(GTK_WINDOW(box), TRUE);
    const gint answer = gtk_dialog_run(GTK_DIALOG(box));
    gtk_widget_destroy(box);
    return answer;
}

static std::string nameOf(const std::string& path) { return std::filesystem::path(path).filename().string(); }

static void showMissing(const std::string& name) {
    answerTo(gtk_message_dialog_new(nullptr, GTK_DIALOG_MODAL, GTK_MESSAGE_WARNING, GTK_BUTTONS_OK,
                                    "There is no file named “%s”.", name.c_str()),
             openTitle);
}

/// A dialog like the last one, in the folder of a file that is not there. GTK shows the last one itself without the
/// focus.
static OwnedDialog dialogAfterMissing(GtkFileChooser* last, const std::string& missing, const FileFilter& filter) {
    OwnedDialog dialog = makeDialog(openTitle, GTK_FILE_CHOOSER_ACTION_OPEN, filter);
    GtkFileChooser* chooser = GTK_FILE_CHOOSER(dialog.get());
    chooseFilter(chooser, chosenFilter(last));
    gtk_file_chooser_set_current_folder(chooser, std::filesystem::path(missing).parent_path().c_str());
    return dialog;
}

std::optional<std::string> askForFileToOpen(const FileFilter& filter) {
    OwnedDialog dialog = makeDialog(openTitle, GTK_FILE_CHOOSER_ACTION_OPEN, filter);
    while (gtk_native_dialog_run(GTK_NATIVE_DIALOG(dialog.get())) == GTK_RESPONSE_ACCEPT) {
        GtkFileChooser* chooser = GTK_FILE_CHOOSER(dialog.get());
        auto path = chosenPath(chooser);
        if (!path || exists(*path)) return path;
        showMissing(nameOf(*path));
        dialog = dialogAfterMissing(chooser, *path, filter);
    }
    return std::nullopt;
}

// The chooser asks by itself about the name as typed; this is for a name that only the extension made an existing one.
static bool mayOverwrite(const std::string& typed, const std::string& path) {
    if (typed == path || !exists(path)) return true;
    GtkWidget* box =
        gtk_message_dialog_new(nullptr, GTK_DIALOG_MODAL, GTK_MESSAGE_QUESTION, GTK_BUTTONS_NONE,
                               "A file named “%s” already exists. Do you want to replace it?", nameOf(path).c_str());
    gtk_dialog_add_buttons(GTK_DIALOG(box), "_Cancel", GTK_RESPONSE_CANCEL, "_Replace", GTK_RESPONSE_ACCEPT, nullptr);
    return answerTo(box, saveTitle) == GTK_RESPONSE_ACCEPT;
}

std::optional<std::string> askForFileToSave(const SaveRequest& request) {
    const OwnedDialog dialog = makeDialog(saveTitle, GTK_FILE_CHOOSER_ACTION_SAVE, request.filter);
    GtkFileChooser* chooser = GTK_FILE_CHOOSER(dialog.get());
    gtk_file_chooser_set_do_overwrite_confirmation(chooser, TRUE);
    if (!request.defaultName.empty()) gtk_file_chooser_set_current_name(chooser, request.defaultName.c_str());
    while (gtk_native_dialog_run(GTK_NATIVE_DIALOG(dialog.get())) == GTK_RESPONSE_ACCEPT) {
        const auto typed = chosenPath(chooser);
        if (!typed) return std::nullopt;
        const std::string path = withDefaultExtension(*typed, request.defaultExtension);
        if (mayOverwrite(*typed, path)) return path;
    }
    return std::nullopt;
}

bool dialogsAreReentrant() { return true; }
