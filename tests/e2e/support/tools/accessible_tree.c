/* Usage: accessible_tree PID [page]

   Prints what a screen reader gets of a process's windows: one line for each object, with tabs between depth, state
   (hidden, shown or focused), role, name and text. Line breaks are blanks. What a web page in them holds is left out
   unless "page" is given: that takes a second. */
#include <atspi/atspi.h>
#include <stdio.h>
#include <stdlib.h>

static gchar* textOf(AtspiAccessible* object) {
    AtspiText* text = atspi_accessible_get_text_iface(object);
    if (text == NULL) return NULL;
    gchar* content = atspi_text_get_text(text, 0, -1, NULL);
    g_object_unref(text);
    return content;
}

static const char* stateOf(AtspiAccessible* object) {
    AtspiStateSet* states = atspi_accessible_get_state_set(object);
    const char* state = "hidden";
    if (atspi_state_set_contains(states, ATSPI_STATE_VISIBLE)) state = "shown";
    if (atspi_state_set_contains(states, ATSPI_STATE_FOCUSED)) state = "focused";
    g_object_unref(states);
    return state;
}

static const char* onOneLine(gchar* text) { return text == NULL ? "" : g_strdelimit(text, "\t\r\n", ' '); }

static gboolean withPages = FALSE;

static void print(AtspiAccessible* object, int depth) {
    gchar* role = atspi_accessible_get_role_name(object, NULL);
    gchar* name = atspi_accessible_get_name(object, NULL);
    gchar* text = textOf(object);
    const gboolean isLeftOut = !withPages && g_strcmp0(role, "document web") == 0;
    printf("%d\t%s\t%s\t%s\t%s\n", depth, stateOf(object), role, onOneLine(name), onOneLine(text));
    g_free(role);
    g_free(name);
    g_free(text);
    const gint count = isLeftOut ? 0 : atspi_accessible_get_child_count(object, NULL);
    for (gint i = 0; i < count; ++i) {
        AtspiAccessible* child = atspi_accessible_get_child_at_index(object, i, NULL);
        if (child == NULL) continue;
        print(child, depth + 1);
        g_object_unref(child);
    }
}

int main(int argc, char** argv) {
    if (argc < 2 || atspi_init() != 0) return 1;
    withPages = argc > 2 && g_strcmp0(argv[2], "page") == 0;
    AtspiAccessible* desktop = atspi_get_desktop(0);
    const gint count = atspi_accessible_get_child_count(desktop, NULL);
    for (gint i = 0; i < count; ++i) {
        AtspiAccessible* application = atspi_accessible_get_child_at_index(desktop, i, NULL);
        if (application == NULL) continue;
        if (atspi_accessible_get_process_id(application, NULL) == (guint)atoi(argv[1])) print(application, 0);
        g_object_unref(application);
    }
    g_object_unref(desktop);
    return 0;
}
