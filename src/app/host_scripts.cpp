#include "app/host_scripts.h"

#include <fmt/format.h>

#include "bridge/web_view.h"
#include "console/log.h"

static constexpr const char* hostInfoTemplate =
    "\n            window.tessary = {{\n                os: {{\n                    platform: '{}',\n"
    "                    arch: '{}'\n                }},\n                backend: {{\n"
    "                    implementation: 'cpp',\n                    msPackageName: {}\n                }}\n"
    "            }};\n        ";

static constexpr const char* launchArgsTemplate =
    "\n            window.tessary.args = {{\n                error: {},\n                filePath: {}\n"
    "            }};\n        ";

std::string escapeJsSingleQuoted(const std::string& text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        if (c == '\\' || c == '\'') escaped += '\\';
        escaped += c;
    }
    return escaped;
}

std::string toJsStringOrNull(const std::optional<std::string>& text) {
    return text ? "'" + escapeJsSingleQuoted(*text) + "'" : "null";
}

std::string hostInfoScript(const std::optional<std::string>& packageFullName) {
    // Fixed on every system: the page behaves the same wherever it runs.
    const std::string platform = "windows";
    const std::string arch = "x64";
    const std::string package = toJsStringOrNull(packageFullName);
    return fmt::vformat(hostInfoTemplate, fmt::make_format_args(platform, arch, package));
}

std::string launchArgsScript(const LaunchArgs& args) {
    const std::string error = toJsStringOrNull(args.ok ? std::nullopt : std::optional(args.error));
    const std::string filePath = toJsStringOrNull(args.filePath);
    return fmt::vformat(launchArgsTemplate, fmt::make_format_args(error, filePath));
}

void injectHostInfo(WebView& view) { view.init(hostInfoScript(currentPackageFullName())); }

void injectLaunchArgs(WebView& view, const LaunchArgs& args) {
    view.init(launchArgsScript(args));
    if (!args.ok) logText("[Backend Error] {}\n", args.error);
    else if (args.filePath) logText("[Backend] Opening file: {}\n", *args.filePath);
}
