#include "app/window/page_window_linux.h"

#include <glib-unix.h>

#include <csignal>
#include <memory>
#include <utility>

#include "app/window/context_menu_linux.h"
#include "app/window/page_zoom_linux.h"
#include "bridge/text/glib_ownership_linux.h"

GtkPageWindow::GtkPageWindow(WebKitWebView* page)
    : page_(page), window_(GTK_WINDOW(gtk_widget_get_toplevel(GTK_WIDGET(page)))) {}

static gboolean requestClose(GtkWidget*, GdkEvent*, const WindowEvents* events) {
    events->closeRequested();
    return TRUE;  // the window stays until it is closed from here
}

static gboolean requestEnd(gpointer events) {
    static_cast<const WindowEvents*>(events)->endRequested();
    return G_SOURCE_CONTINUE;
}

static void reportDeath(WebKitWebView*, WebKitWebProcessTerminationReason, const WindowEvents* events) {
    events->pageDied(true);
}

std::string GtkPageWindow::title() {
    const char* const title = webkit_web_view_get_title(page_);
    return title == nullptr ? "" : title;
}

void GtkPageWindow::listen(WindowEvents events) {
    events_ = std::move(events);
    g_signal_connect(window_, "delete-event", G_CALLBACK(requestClose), &events_);
    restrictContextMenu(page_);
    enableZoom(page_);
    g_signal_connect(page_, "web-process-terminated", G_CALLBACK(reportDeath), &events_);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) g_unix_signal_add(signal, requestEnd, &events_);
}

using Done = std::function<void(PageResult)>;

static void finishEvaluation(GObject* page, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Done> done(static_cast<Done*>(data));
    GError* failure = nullptr;
    JSCValue* value = webkit_web_view_evaluate_javascript_finish(WEBKIT_WEB_VIEW(page), result, &failure);
    g_clear_error(&failure);
    const OwnedObject<JSCValue> owned(value);
    const OwnedText json(value == nullptr ? nullptr : jsc_value_to_json(value, 0));
    (*done)(json ? PageResult(json.get()) : std::nullopt);
}

void GtkPageWindow::evaluate(const std::string& script, Done done) {
    webkit_web_view_evaluate_javascript(page_, script.c_str(), static_cast<gssize>(script.size()), nullptr, nullptr,
                                        nullptr, finishEvaluation, new Done(std::move(done)));
}

using Task = std::function<void()>;

void GtkPageWindow::after(std::chrono::milliseconds delay, Task task) {
    const auto run = [](gpointer data) -> gboolean {
        (*static_cast<Task*>(data))();
        return G_SOURCE_REMOVE;
    };
    const auto release = [](gpointer data) { delete static_cast<Task*>(data); };
    g_timeout_add_full(G_PRIORITY_DEFAULT, static_cast<guint>(delay.count()), run, new Task(std::move(task)), release);
}

void GtkPageWindow::navigate(const std::string& url) { webkit_web_view_load_uri(page_, url.c_str()); }

using Answered = std::function<void(gint)>;

/// Shows a message box without waiting for its answer; the box goes when it is answered.
static void show(GtkWidget* box, Answered answered) {
    const auto respond = [](GtkDialog* dialog, gint response, gpointer data) {
        const Answered answer = *static_cast<Answered*>(data);
        gtk_widget_destroy(GTK_WIDGET(dialog));
        answer(response);
    };
    const auto release = [](gpointer data, GClosure*) { delete static_cast<Answered*>(data); };
    g_signal_connect_data(box, "response", G_CALLBACK(+respond), new Answered(std::move(answered)), release,
                          static_cast<GConnectFlags>(0));
    gtk_window_present(GTK_WINDOW(box));
}

void GtkPageWindow::askToDiscard(const DiscardQuestion& question, std::function<void(bool)> answered) {
    GtkWidget* box = gtk_message_dialog_new(window_, GTK_DIALOG_MODAL, GTK_MESSAGE_WARNING, GTK_BUTTONS_NONE, "%s",
                                            question.text.c_str());
    gtk_window_set_title(GTK_WINDOW(box), question.title.c_str());
    GtkDialog* dialog = GTK_DIALOG(box);
    GtkWidget* discard = gtk_dialog_add_button(dialog, question.discard.c_str(), GTK_RESPONSE_ACCEPT);
    gtk_style_context_add_class(gtk_widget_get_style_context(discard), "destructive-action");
    gtk_widget_grab_focus(gtk_dialog_add_button(dialog, question.cancel.c_str(), GTK_RESPONSE_CANCEL));
    gtk_dialog_set_default_response(dialog, GTK_RESPONSE_CANCEL);
    show(box, [answered = std::move(answered)](gint response) { answered(response == GTK_RESPONSE_ACCEPT); });
}

void GtkPageWindow::report(const std::string& sentence, std::function<void()> read) {
    GtkWidget* box =
        gtk_message_dialog_new(window_, GTK_DIALOG_MODAL, GTK_MESSAGE_ERROR, GTK_BUTTONS_OK, "%s", sentence.c_str());
    gtk_window_set_title(GTK_WINDOW(box), gtk_window_get_title(window_));
    show(box, [read = std::move(read)](gint) { read(); });
}

/// Whether there was one to cancel. It goes when the loop that shows it gets its turn.
static bool cancelVisibleDialogs() {
    bool found = false;
    GList* windows = gtk_window_list_toplevels();
    g_list_foreach(windows, [](gpointer window, gpointer) { g_object_ref(window); }, nullptr);
    for (GList* each = windows; each != nullptr; each = each->next) {
        if (!GTK_IS_DIALOG(each->data) || gtk_widget_is_visible(GTK_WIDGET(each->data)) == FALSE) continue;
        found = true;
        gtk_dialog_response(GTK_DIALOG(each->data), GTK_RESPONSE_DELETE_EVENT);
    }
    g_list_free_full(windows, g_object_unref);
    return found;
}

void GtkPageWindow::cancelDialogs() { cancelVisibleDialogs(); }

void GtkPageWindow::close() {
    // A dialog that was cancelled a moment ago, or came since, may be on the stack, and uses the page when it returns.
    after(std::chrono::milliseconds(0), [this] {
        if (cancelVisibleDialogs()) return close();
        gtk_widget_destroy(GTK_WIDGET(window_));
    });
}
