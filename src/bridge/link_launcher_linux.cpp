#include <gio/gio.h>

#include "bridge/link_opener.h"

bool launchUrl(const std::string& url) {
    return g_app_info_launch_default_for_uri(url.c_str(), nullptr, nullptr) == TRUE;
}
