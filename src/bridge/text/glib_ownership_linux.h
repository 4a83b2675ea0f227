// What GLib hands over, released at the end of the scope.
#pragma once
#include <glib-object.h>

#include <memory>

struct GlibRelease {
    void operator()(gchar* text) const { g_free(text); }
    void operator()(gpointer object) const { g_object_unref(object); }
};

using OwnedText = std::unique_ptr<gchar, GlibRelease>;
template <typename Object>
using OwnedObject = std::unique_ptr<Object, GlibRelease>;
