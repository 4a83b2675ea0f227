/* Usage: accessible_events

   Prints "ready", then what a screen reader hears of changes in live regions, a line each: the region's
   role and the text of what was put into it, with a tab between. Line breaks are blanks. Ends when it is killed. */
#include <atspi/atspi.h>
#include <stdio.h>

static gboolean isLive(AtspiAccessible* object) {
    GHashTable* attributes = atspi_accessible_get_attributes(object, NULL);
    if (attributes == NULL) return FALSE;
    const gchar* live = g_hash_table_lookup(attributes, "container-live");
    const gboolean is = live != NULL && g_strcmp0(live, "off") != 0;
    g_hash_table_unref(attributes);
    return is;
}

static gchar* textOf(AtspiAccessible* object) {
    AtspiText* text = atspi_accessible_get_text_iface(object);
    if (text == NULL) return g_strdup("");
    gchar* content = atspi_text_get_text(text, 0, -1, NULL);
    g_object_unref(text);
    return content == NULL ? g_strdup("") : g_strdelimit(content, "\t\r\n", ' ');
}

static void report(AtspiEvent* event, void* unused) {
    (void)unused;
    if (G_VALUE_HOLDS(&event->any_data, ATSPI_TYPE_ACCESSIBLE) && isLive(event->source)) {
        gchar* role = atspi_accessible_get_role_name(event->source, NULL);
        gchar* text = textOf(g_value_get_object(&event->any_data));
        printf("%s\t%s\n", role, text);
        fflush(stdout);
        g_free(role);
        g_free(text);
    }
    g_boxed_free(ATSPI_TYPE_EVENT, event);
}

int main(void) {
    if (atspi_init() != 0) return 1;
    AtspiEventListener* listener = atspi_event_listener_new(report, NULL, NULL);
    if (!atspi_event_listener_register(listener, "object:children-changed:add", NULL)) return 1;
    printf("ready\n");
    fflush(stdout);
    atspi_event_main();
    return 0;
}
