// Hands the page's external links to the desktop.
#pragma once
#include <string>
#include <string_view>

/// Whether the desktop may be asked to open `url`: it begins with http://, https:// or mailto:, in lower case.
[[nodiscard]] bool isExternalLink(std::string_view url);

/// Gives `url` to the system's handler for its scheme, without waiting for the program that it starts. False when the
/// system refused. Bytes are passed as they are.
[[nodiscard]] bool launchUrl(const std::string& url);

/// Opens the URL that is the first argument of `request` (JSON array text) in the user's browser or mail program and
/// answers "null". Throws std::runtime_error with a sentence for the page when the request holds no string, when the
/// URL does not begin with http://, https:// or mailto: in lower case, and when `launch` refuses it.
std::string openExternalUrl(const std::string& request, bool (*launch)(const std::string&) = launchUrl);
