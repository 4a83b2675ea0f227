#include <gtk/gtk.h>

#include "app/window/notice.h"
#include "bridge/text/utf8.h"

static constexpr int spacing = 12;          // pixels
static constexpr int lineLength = 60;       // characters
static constexpr int greatestHeight = 320;  // pixels, of the text; what is longer can be scrolled

class Notice::Native {
public:
    explicit Native(void* owner) : owner_(owner) {
        if (owner_ != nullptr) g_object_add_weak_pointer(G_OBJECT(owner_), &owner_);
    }
    ~Native() {
        close();
        if (owner_ != nullptr) g_object_remove_weak_pointer(G_OBJECT(owner_), &owner_);
    }
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;

    void show(const NoticeContent& content) {
        if (window_ == nullptr) open();
        gtk_label_set_text(GTK_LABEL(heading_), wellFormedUtf8(content.heading).c_str());
        gtk_label_set_text(GTK_LABEL(text_), wellFormedUtf8(content.text).c_str());
        setButtons(content.buttons);
        gtk_widget_show_all(window_);
    }
    void close() {
        if (window_ != nullptr) gtk_widget_destroy(window_);
    }
    [[nodiscard]] bool isShown() const { return window_ != nullptr; }

private:
    void open();
    void setButtons(const std::vector<NoticeButton>& buttons);
    void addButton(const NoticeButton& button);

    gpointer owner_;
    GtkWidget* window_ = nullptr;
    GtkWidget* heading_ = nullptr;
    GtkWidget* text_ = nullptr;
    GtkWidget* buttons_ = nullptr;
};

static GtkWidget* textLabel() {
    GtkWidget* const label = gtk_label_new(nullptr);
    gtk_label_set_line_wrap(GTK_LABEL(label), TRUE);
    gtk_label_set_line_wrap_mode(GTK_LABEL(label), PANGO_WRAP_WORD_CHAR);
    gtk_label_set_max_width_chars(GTK_LABEL(label), lineLength);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    gtk_label_set_yalign(GTK_LABEL(label), 0);
    return label;
}

static void makeBold(GtkWidget* label) {
    PangoAttrList* const attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_weight_new(PANGO_WEIGHT_BOLD));
    gtk_label_set_attributes(GTK_LABEL(label), attributes);
    pango_attr_list_unref(attributes);
}

static GtkWidget* scrolled(GtkWidget* content) {
    GtkWidget* const view = gtk_scrolled_window_new(nullptr, nullptr);
    gtk_scrolled_window_set_policy(GTK_SCROLLED_WINDOW(view), GTK_POLICY_NEVER, GTK_POLICY_AUTOMATIC);
    gtk_scrolled_window_set_propagate_natural_height(GTK_SCROLLED_WINDOW(view), TRUE);
    gtk_scrolled_window_set_propagate_natural_width(GTK_SCROLLED_WINDOW(view), TRUE);
    gtk_scrolled_window_set_max_content_height(GTK_SCROLLED_WINDOW(view), greatestHeight);
    gtk_container_add(GTK_CONTAINER(view), content);
    return view;
}

static GtkWidget* box(GtkOrientation orientation) { return gtk_box_new(orientation, spacing); }

static gboolean closeOnEscape(GtkWidget* window, GdkEventKey* event, gpointer) {
    if (event->keyval != GDK_KEY_Escape) return FALSE;
    gtk_widget_destroy(window);
    return TRUE;
}

void Notice::Native::open() {
    window_ = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    g_signal_connect(window_, "destroy", G_CALLBACK(gtk_widget_destroyed), &window_);
    g_signal_connect(window_, "key-press-event", G_CALLBACK(closeOnEscape), nullptr);
    GtkWindow* const window = GTK_WINDOW(window_);
    gtk_window_set_title(window, "Notice - Tessary");
    gtk_window_set_type_hint(window, GDK_WINDOW_TYPE_HINT_DIALOG);
    gtk_window_set_resizable(window, FALSE);
    if (owner_ != nullptr) {
        gtk_window_set_transient_for(window, GTK_WINDOW(owner_));
        gtk_window_set_destroy_with_parent(window, TRUE);
        gtk_window_set_position(window, GTK_WIN_POS_CENTER_ON_PARENT);
    }
    // Whoever types goes on typing where he was.
    gtk_window_set_focus_on_map(window, FALSE);
    atk_object_set_role(gtk_widget_get_accessible(window_), ATK_ROLE_ALERT);

    heading_ = textLabel();
    makeBold(heading_);
    text_ = textLabel();
    gtk_label_set_selectable(GTK_LABEL(text_), TRUE);
    buttons_ = gtk_button_box_new(GTK_ORIENTATION_HORIZONTAL);
    gtk_button_box_set_layout(GTK_BUTTON_BOX(buttons_), GTK_BUTTONBOX_END);
    gtk_box_set_spacing(GTK_BOX(buttons_), spacing / 2);

    GtkWidget* const texts = box(GTK_ORIENTATION_VERTICAL);
    gtk_container_add(GTK_CONTAINER(texts), heading_);
    gtk_box_pack_start(GTK_BOX(texts), scrolled(text_), TRUE, TRUE, 0);
    GtkWidget* const icon = gtk_image_new_from_icon_name("dialog-warning", GTK_ICON_SIZE_DIALOG);
    gtk_widget_set_valign(icon, GTK_ALIGN_START);
    GtkWidget* const upper = box(GTK_ORIENTATION_HORIZONTAL);
    gtk_container_add(GTK_CONTAINER(upper), icon);
    gtk_box_pack_start(GTK_BOX(upper), texts, TRUE, TRUE, 0);
    GtkWidget* const all = box(GTK_ORIENTATION_VERTICAL);
    gtk_container_set_border_width(GTK_CONTAINER(all), spacing);
    gtk_box_pack_start(GTK_BOX(all), upper, TRUE, TRUE, 0);
    gtk_container_add(GTK_CONTAINER(all), buttons_);
    gtk_container_add(GTK_CONTAINER(window_), all);
}

static void press(GtkWidget*, std::function<void()>* action) {
    // What it does may take the button away, and the action with it.
    const std::function<void()> kept = *action;
    kept();
}

static void release(gpointer action, GClosure*) { delete static_cast<std::function<void()>*>(action); }

void Notice::Native::addButton(const NoticeButton& button) {
    GtkWidget* const widget = gtk_button_new_with_label(wellFormedUtf8(button.label).c_str());
    g_signal_connect_data(widget, "clicked", G_CALLBACK(press), new std::function<void()>(button.press), release,
                          static_cast<GConnectFlags>(0));
    gtk_container_add(GTK_CONTAINER(buttons_), widget);
}

void Notice::Native::setButtons(const std::vector<NoticeButton>& buttons) {
    gtk_container_foreach(
        GTK_CONTAINER(buttons_), [](GtkWidget* button, gpointer) { gtk_widget_destroy(button); }, nullptr);
    for (const NoticeButton& button : buttons) addButton(button);
    GtkWidget* const closing = gtk_button_new_with_label("Close");
    g_signal_connect_swapped(closing, "clicked", G_CALLBACK(gtk_widget_destroy), window_);
    gtk_container_add(GTK_CONTAINER(buttons_), closing);
    gtk_widget_grab_focus(closing);
}

Notice::Notice(void* owner) : native_(std::make_unique<Native>(owner)) {}

Notice::~Notice() = default;

void Notice::show(const NoticeContent& content) { native_->show(content); }

void Notice::close() { native_->close(); }

bool Notice::isShown() const { return native_->isShown(); }
