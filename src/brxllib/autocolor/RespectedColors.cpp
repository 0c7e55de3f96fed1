#include "brxllib/autocolor/RespectedColors.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"

namespace kestrune::brxllib {

bool RespectedColors::holds(std::int32_t color) {
    const auto [answer, unknown] = answers_.try_emplace(color, false);
    if (unknown) answer->second = ask(color);
    return answer->second;
}

bool RespectedColors::ask(std::int32_t color) const {
    const automation::ResumeNext attempt(library_.trace);
    // A client may unregister while it answers.
    const auto callbacks = library_.callbacks;
    for (const auto& [client, callback] : callbacks) {
        bool respected = false;
        attempt.assign(respected,
                       [&] { return automation::to_boolean(automation::call(*callback, "DoNotAutoColor", {color})); });
        if (respected) return true;
    }
    return false;
}

}  // namespace kestrune::brxllib
