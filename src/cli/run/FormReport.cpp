#include "cli/run/FormReport.h"

#include <fmt/format.h>

#include "automation/Conversion.h"
#include "forms/FormText.h"

namespace kestrune::cli {
namespace {

using automation::Value;
using nlohmann::ordered_json;

ordered_json json_of(const Value& value) {
    if (const auto* truth = value.if_is<bool>()) return *truth;
    if (const auto* number = value.if_is<std::int32_t>()) return *number;
    return automation::to_text(value);
}

}  // namespace

std::string form_line(const forms::Form& form) {
    const std::string chosen = forms::chosen_text(form);
    return fmt::format("{}{}{} [{}]", form.Caption(), chosen.empty() ? "" : ": ", chosen,
                       form.pressed() ? form.pressed()->Caption() : "closed");
}

ordered_json form_json(const forms::Form& form) {
    ordered_json controls = ordered_json::object();
    for (const forms::Control& control : form.controls()) {
        const Value value = control.Value();
        if (!value.is(Value::Kind::Empty)) controls[std::string(control.Name())] = json_of(value);
    }
    return {{"form", form.design().name},
            {"caption", form.Caption()},
            {"controls", controls},
            {"answer", form.pressed() ? ordered_json(form.pressed()->Name()) : ordered_json(nullptr)}};
}

}  // namespace kestrune::cli
