#include "bridge/link_opener.h"

#include <array>
#include <stdexcept>
#include <string_view>

#include "bridge/request.h"

bool isExternalLink(std::string_view url) {
    static constexpr std::array<std::string_view, 3> accepted = {"http://", "https://", "mailto:"};
    for (const std::string_view scheme : accepted) {
        if (url.starts_with(scheme)) return true;
    }
    return false;
}

static std::string requestedUrl(const std::string& requestText) {
    const Request request(requestText);
    if (request.size() == 0) throw std::runtime_error("Invalid arguments for openExternalUrl");
    auto url = request.string(0);
    if (!url) throw std::runtime_error("URL must be a string");
    return *std::move(url);
}

std::string openExternalUrl(const std::string& request, bool (*launch)(const std::string&)) {
    const std::string url = requestedUrl(request);
    if (!isExternalLink(url)) {
        throw std::runtime_error("Invalid URL protocol. Only http://, https://, and mailto: are allowed");
    }
    if (!launch(url)) throw std::runtime_error("Failed to open URL in browser");
    return "null";
}
