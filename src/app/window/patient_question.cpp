#include "app/window/patient_question.h"

#include <memory>
#include <utility>

void askPage(PageWindow& window, const std::string& script, std::function<void(const PageAnswer&)> done) {
    // Whatever comes first takes the function; the other one finds it gone.
    const auto waiting = std::make_shared<std::function<void(const PageAnswer&)>>(std::move(done));
    const auto answer = [waiting](const PageAnswer& given) {
        if (const auto taken = std::exchange(*waiting, nullptr)) taken(given);
    };
    window.after(pagePatience, [answer] { answer({false, std::nullopt}); });
    window.evaluate(script, [answer](const PageResult& result) { answer({true, result}); });
}
