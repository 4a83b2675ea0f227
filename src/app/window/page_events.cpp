#include "app/window/page_events.h"

#include "bridge/text/json.h"

static std::string eventScript(const std::string& name, const std::string& detail = "{}") {
    return "(() => { const event = new CustomEvent('" + name + "', { cancelable: true, detail: " + detail +
           " }); return dispatchEvent(event) ? null : event.detail.answer; })()";
}

static Json answerOf(const PageResult& answer) { return Json(answer ? json_tokener_parse(answer->c_str()) : nullptr); }

/// Empty when there is no such text.
static std::string text(const Json& answer, const char* key) {
    json_object* member = nullptr;
    if (!json_object_object_get_ex(answer.get(), key, &member)) return {};
    if (json_object_get_type(member) != json_type_string) return {};
    return {json_object_get_string(member), static_cast<std::size_t>(json_object_get_string_len(member))};
}

std::string closeEventScript() { return eventScript("tessary-close"); }

std::optional<DiscardQuestion> discardQuestionOf(const PageResult& result) {
    const Json answer = answerOf(result);
    if (json_object_get_type(answer.get()) != json_type_object) return std::nullopt;
    return DiscardQuestion{text(answer, "title"), text(answer, "text"), text(answer, "discard"),
                           text(answer, "cancel")};
}

std::string endEventScript() { return eventScript("tessary-end"); }

bool marksUnsavedWork(std::string_view title) { return title.ends_with('*'); }

std::string workEventScript(bool whole) { return eventScript("tessary-work", whole ? "{ whole: true }" : "{}"); }

std::optional<UnsavedWork> unsavedWorkOf(const PageResult& result) {
    const Json answer = answerOf(result);
    if (json_object_get_type(answer.get()) != json_type_object) return std::nullopt;
    const std::string state = text(answer, "state");
    if (state == "none") return UnsavedWork{};
    if (state == "same") return UnsavedWork{UnsavedWork::State::same, {}, {}};
    if (state != "changed") return std::nullopt;
    return UnsavedWork{UnsavedWork::State::changed, text(answer, "name"), text(answer, "text")};
}
