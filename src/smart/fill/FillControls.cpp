#include "smart/fill/FillControls.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "settings/cUserSettings.h"

namespace kestrune::smart {

using forms::Event;

void connect_fill_controls(const core::SharedState& shared, forms::Form& form) {
    form.on("txtSpacing", Event::Change, [&](auto&) {
        const automation::ResumeNext attempt(shared.trace);
        attempt([&] {
            const auto typed = shared.general().typed_number(form["txtSpacing"].Text());
            const auto& arrows = form["spnSpacing"];
            if (typed && *typed >= arrows.Min() && *typed <= arrows.Max() && *typed == std::floor(*typed)) {
                form["spnSpacing"].Number(static_cast<std::int32_t>(*typed));
            }
        });
    });
    form.on("spnSpacing", Event::Change, [&](auto&) {
        const automation::ResumeNext attempt(shared.trace);
        attempt([&] {
            const std::int32_t number = form["spnSpacing"].Number();
            if (shared.general().typed_number(form["txtSpacing"].Text()) != number) {
                form["txtSpacing"].Text(std::to_string(number));
            }
        });
    });
}

void show_fill_options(const core::SharedState& shared, forms::Form& form, std::int32_t spacing, bool across,
                       const std::string& style) {
    form["txtSpacing"].Text(std::to_string(spacing));
    form[across ? "optAcross" : "optDown"].Checked(true);
    const automation::ResumeNext attempt(shared.trace);
    attempt([&] {
        std::vector<std::string> names;
        const styles::cStyles& library = *shared.settings().Styles;
        for (std::int32_t i = 1; i <= library.Count(); ++i) names.push_back(library.Item(i)->FriendlyName);
        form["cmbStyle"].List(std::move(names));
    });
    form["cmbStyle"].Text(style);
}

std::optional<std::int32_t> spacing_in(const core::SharedState& shared, forms::Form& form) {
    const std::string_view text = automation::trimmed(form["txtSpacing"].Text());
    if (!shared.general().check_numeric_field(text, "spacing")) return std::nullopt;
    const double typed = std::nearbyint(shared.general().typed_number(text).value_or(0));
    return static_cast<std::int32_t>(std::clamp(typed, -1.0, 2e9));
}

}  // namespace kestrune::smart
