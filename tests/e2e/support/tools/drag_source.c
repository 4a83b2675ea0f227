/* A small window, right of the program's, from which an address can be dragged: drag_source ADDRESS
   Prints "dropped" or "refused" each time that the button is let go after a drag. */
#include <gtk/gtk.h>
#include <stdio.h>

static const char* address;
static gboolean refused;

static void give(GtkWidget* source, GdkDragContext* context, GtkSelectionData* data, guint info, guint time) {
    (void)source, (void)context, (void)info, (void)time;
    const gchar* addresses[] = {address, NULL};
    gtk_selection_data_set_uris(data, (gchar**)addresses);
}

static gboolean note_refusal(GtkWidget* source, GdkDragContext* context, GtkDragResult result) {
    (void)source, (void)context, (void)result;
    refused = TRUE;
    return TRUE;
}

static void report(GtkWidget* source, GdkDragContext* context) {
    (void)source, (void)context;
    puts(refused ? "refused" : "dropped");
    fflush(stdout);
    refused = FALSE;
}

int main(int argc, char** argv) {
    if (!gtk_init_check(&argc, &argv) || argc != 2) return 2;
    address = argv[1];
    GtkWidget* window = gtk_window_new(GTK_WINDOW_POPUP);
    GtkTargetEntry kind = {(gchar*)"text/uri-list", 0, 0};
    gtk_drag_source_set(window, GDK_BUTTON1_MASK, &kind, 1, GDK_ACTION_COPY | GDK_ACTION_LINK);
    g_signal_connect(window, "drag-data-get", G_CALLBACK(give), NULL);
    g_signal_connect(window, "drag-failed", G_CALLBACK(note_refusal), NULL);
    g_signal_connect(window, "drag-end", G_CALLBACK(report), NULL);
    gtk_window_move(GTK_WINDOW(window), 900, 100);
    gtk_window_resize(GTK_WINDOW(window), 100, 100);
    gtk_widget_show_all(window);
    puts("ready");
    fflush(stdout);
    gtk_main();
    return 0;
}
