/* The least that can show a page in a window, to compare the program with: floor URL */
#include <webkit2/webkit2.h>

int main(int argc, char** argv) {
    gtk_init(&argc, &argv);
    if (argc != 2) return 2;
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_default_size(GTK_WINDOW(window), 800, 600);
    g_signal_connect(window, "destroy", G_CALLBACK(gtk_main_quit), NULL);
    GtkWidget* view = webkit_web_view_new();
    gtk_container_add(GTK_CONTAINER(window), view);
    webkit_web_view_load_uri(WEBKIT_WEB_VIEW(view), argv[1]);
    gtk_widget_show_all(window);
    gtk_main();
    return 0;
}
