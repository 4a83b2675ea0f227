// Whatever a file or a path holds, the page gets a plain ASCII answer that reads back as the same text.
#include "bridge/envelope.h"

#include "bridge/text/utf8.h"
#include "support/fuzz_target.h"
#include "support/input.h"
#include "support/json_text.h"
#include "support/require.h"
#include "support/utf8_reference.h"

namespace fuzz_envelope {

static void skip(const std::string& json, std::size_t& at, const std::string& text) {
    require(json.compare(at, text.size(), text) == 0, "an envelope has its members in order and nothing else");
    at += text.size();
}

static void checkMember(const std::string& json, std::size_t& at, const std::string& key, const std::string& text) {
    const std::string wanted = repaired(upToNul(text));
    if (wanted.empty()) return;
    skip(json, at, ", \"" + key + "\": ");
    require(readJsonString(json, at) == wanted, "a member reads back as its text");
}

static void checkEnvelope(const Outcome& outcome, const char* payloadKey) {
    const std::string answer = envelope(outcome, payloadKey);
    std::size_t at = 0;
    skip(answer, at, outcome.success ? "{ \"success\": true" : "{ \"success\": false");
    checkMember(answer, at, payloadKey, outcome.payload);
    checkMember(answer, at, "error", outcome.error);
    skip(answer, at, " }");
    require(at == answer.size(), "nothing follows an envelope");
}

static void checkString(const std::string& text) {
    const std::string quoted = jsonString(text);
    std::size_t at = 0;
    require(readJsonString(quoted, at) == repaired(upToNul(text)), "a quoted text reads back");
    require(at == quoted.size(), "nothing follows a quoted text");
}

static void checkRepair(const std::string& text) {
    const std::string whole = wellFormedUtf8(text);
    require(whole == repaired(text), "text is repaired as browsers do it");
    require(wellFormedUtf8(whole) == whole, "repaired text stays as it is");
}

FUZZ_TARGET(envelope) {
    const std::string text = textOf(data, size);
    checkRepair(text);
    checkString(text);
    checkEnvelope(succeeded(text), "data");
    checkEnvelope(succeeded(text), "path");
    checkEnvelope({false, text, text}, "data");
    return 0;
}

}  // namespace fuzz_envelope
