// Whatever a file or a package is called, it stays inside its literal of the start scripts.
#include "app/host_scripts.h"

#include "bridge/text/utf8.h"
#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/require.h"
#include "support/utf8_reference.h"

namespace fuzz_host_scripts {

/// What a single-quoted script literal at `at` stands for; moves `at` behind it.
static std::string literalAt(const std::string& script, std::size_t& at) {
    require(at < script.size() && script[at] == '\'', "a literal begins with a quote");
    std::string text;
    for (++at; at < script.size() && script[at] != '\''; ++at) {
        if (script[at] == '\\') ++at;
        require(at < script.size(), "a literal does not end in the middle of an escape");
        text += script[at];
    }
    require(at < script.size(), "a literal ends before its script");
    ++at;
    return text;
}

static void skip(const std::string& script, std::size_t& at, const std::string& text) {
    require(script.compare(at, text.size(), text) == 0, "the script goes on as written around its literals");
    at += text.size();
}

static std::string valueAt(const std::string& script, std::size_t& at) {
    if (script.compare(at, 4, "null") != 0) return literalAt(script, at);
    at += 4;
    return "null";
}

static void checkArguments(const std::string& script, const std::string& error, const std::string& filePath) {
    std::size_t at = 0;
    skip(script, at, "\n            window.tessary.args = {\n                error: ");
    require(valueAt(script, at) == error, "the page gets the error");
    skip(script, at, ",\n                filePath: ");
    require(valueAt(script, at) == filePath, "the page gets the path");
    skip(script, at, "\n            };\n        ");
    require(at == script.size(), "nothing follows the script");
}

static void checkPackage(const std::string& script, const std::string& package) {
    const std::string before = "msPackageName: ";
    std::size_t at = script.find(before);
    require(at != std::string::npos, "the script names the package");
    at += before.size();
    require(literalAt(script, at) == package, "the page gets the package");
    require(script.substr(at) == "\n                }\n            };\n        ", "nothing follows the package");
}

FUZZ_TARGET(host_scripts) {
    const std::string text = textOf(data, size);
    const std::string whole = repaired(text);

    const std::string opened = launchArgsScript({true, "", text});
    checkArguments(opened, "null", text);
    checkArguments(wellFormedUtf8(opened), "null", whole);  // as it reaches the page

    const std::string refused = launchArgsScript({false, text, std::nullopt});
    checkArguments(refused, text, "null");
    checkArguments(wellFormedUtf8(refused), whole, "null");

    const std::string described = hostInfoScript(text);
    checkPackage(described, text);
    checkPackage(wellFormedUtf8(described), whole);
    return 0;
}

}  // namespace fuzz_host_scripts
