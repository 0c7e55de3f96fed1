#include "menus/CyclePopups.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "automation/ResumeNext.h"
#include "menus/Captions.h"
#include "settings/cUserSettings.h"

namespace kestrune::menus {
namespace {

using automation::ObjectRef;
using automation::ResumeNext;
using core::SharedState;
using settings::NumericCycle;
using settings::StyleCycle;

constexpr std::string_view color_label = "Color";

// clang-format off
constexpr auto popups = std::to_array<CyclePopup>({
    {"UpdateGeneralStyleTogglePopup", "19", StyleCycle::GeneralStyleToggle},
    {"UpdateCurrencyStyleTogglePopup", "20", StyleCycle::CurrencyStyleToggle},
    {"UpdatePercentStyleTogglePopup", "21", StyleCycle::PercentStyleToggle},
    {"UpdateMultipleStyleTogglePopup", "22", StyleCycle::MultipleSTyleToggle},
    {"UpdateDateStyleTogglePopup", "23", StyleCycle::DateStyleToggle},
    {"UpdateBinaryStyleTogglePopup", "24", StyleCycle::BinaryStyleToggle},
    {"UpdateUnderlineStyleTogglePopup", "25", StyleCycle::UnderlineStyleToggle},
    {"UpdateCenterStyleTogglePopup", "26", StyleCycle::CenterStyleToggle},
    {"UpdateHAlignStyleTogglePopup", "27", StyleCycle::HAlignStyleToggle},
    {"UpdateVAlignStyleTogglePopup", "28", StyleCycle::VAlignStyleToggle},
    {"UpdateBorderStyleTogglePopup", "29", StyleCycle::BorderStyleToggle},
    {"UpdateCellColorStyleTogglePopup", "30", StyleCycle::CellColorStyleToggle},
    {"UpdateMyStyleToggle1Popup", "31", StyleCycle::MyStyleToggle1},
    {"UpdateMyStyleToggle2Popup", "32", StyleCycle::MyStyleToggle2},
    {"UpdateMyStyleToggle3Popup", "33", StyleCycle::MyStyleToggle3},
    {"UpdateMyStyleToggle4Popup", "34", StyleCycle::MyStyleToggle4},
    {"UpdateMyStyleToggle5Popup", "35", StyleCycle::MyStyleToggle5},
    {"UpdateMyStyleToggle6Popup", "36", StyleCycle::MyStyleToggle6},
    {"UpdateMyStyleToggle7Popup", "37", StyleCycle::MyStyleToggle7},
    {"UpdateMyStyleToggle8Popup", "38", StyleCycle::MyStyleToggle8},
    {"UpdateMyStyleToggle9Popup", "39", StyleCycle::MyStyleToggle9},
    {"UpdateMyStyleToggle10Popup", "40", StyleCycle::MyStyleToggle10},
    {"UpdateMyStyleToggle11Popup", "41", StyleCycle::MyStyleToggle11},
    {"UpdateMyStyleToggle12Popup", "42", StyleCycle::MyStyleToggle12},
    {"UpdateMyStyleToggle13Popup", "43", StyleCycle::MyStyleToggle13},
    {"UpdateMyStyleToggle14Popup", "44", StyleCycle::MyStyleToggle14},
    {"UpdateMyStyleToggle15Popup", "45", StyleCycle::MyStyleToggle15},
    {"UpdateMyColorToggle1Popup", "46", NumericCycle::MyColorToggle1, color_label},
    {"UpdateMyColorToggle2Popup", "47", NumericCycle::MyColorToggle2, color_label},
    {"UpdateMyColorToggle3Popup", "48", NumericCycle::MyColorToggle3, color_label},
    {"UpdateMyColorToggle4Popup", "49", NumericCycle::MyColorToggle4, color_label},
    {"UpdateMyColorToggle5Popup", "50", NumericCycle::MyColorToggle5, color_label},
    {"UpdateLeftIndentTogglePopup", "58", NumericCycle::IndentToggle, "Indent Level"},
    {"UpdateRightIndentTogglePopup", "97", NumericCycle::RightIndentToggle, "Indent Level"},
    {"UpdateRowHeightTogglePopup", "59", NumericCycle::RowHeightToggle, "Row Height"},
    {"UpdateColumnWidthTogglePopup", "60", NumericCycle::ColWidthToggle, "Column Width"},
});
// clang-format on

// One step as its button shows it.
struct Step {
    std::string caption;
    std::optional<std::int32_t> color{};
};

std::vector<Step> steps_of(const SharedState& shared, const CyclePopup& popup) {
    std::vector<Step> steps;
    if (const auto* style = std::get_if<StyleCycle>(&popup.cycle)) {
        const auto& toggle = shared.settings().cycle(*style);
        for (std::int32_t i = 1; toggle && i <= toggle->Styles->Count(); ++i) {
            steps.push_back({literal_caption(toggle->Styles->Item(i)->FriendlyName)});
        }
        return steps;
    }
    const auto& toggle = shared.settings().cycle(std::get<NumericCycle>(popup.cycle));
    for (std::size_t i = 0; toggle && i < toggle->Settings.size(); ++i) {
        Step step{fmt::format("{} {}", popup.label, i + 1)};
        if (popup.label == color_label) step.color = static_cast<std::int32_t>(toggle->Settings[i]);
        steps.push_back(std::move(step));
    }
    return steps;
}

void fill(const SharedState& shared, const CyclePopup& popup, const ObjectRef& control) {
    const ResumeNext attempt(shared.trace);
    std::vector<Step> steps;
    attempt.assign(steps, [&] { return steps_of(shared, popup); });
    attempt([&] { shared.spreadsheet().clear_controls(control); });
    bool any = false;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        any |= attempt([&] {
            shared.spreadsheet().add_button(control, {.caption = steps[i].caption,
                                                      .on_action = "mDOM.RunMacro",
                                                      .parameter = fmt::format("{}.{}", popup.command, i + 1),
                                                      .color = steps[i].color});
        });
    }
    attempt([&] { shared.spreadsheet().set_control_enabled(control, any); });
}

}  // namespace

std::span<const CyclePopup> cycle_popups() { return popups; }

const CyclePopup& cycle_popup(std::string_view command) {
    const auto found = std::ranges::find(popups, command, &CyclePopup::command);
    if (found == popups.end()) {
        throw automation::AutomationError(automation::hresult::bad_index, command, "is no SmartCycle's command");
    }
    return *found;
}

std::string name_of(const SharedState& shared, const CyclePopup& popup) {
    std::string name = std::visit(
        [&](auto cycle) {
            const auto& toggle = shared.settings().cycle(cycle);
            return toggle ? toggle->Name : std::string();
        },
        popup.cycle);
    if (name.empty()) name = shared.general().text(2000 + std::stoi(std::string(popup.command)));
    constexpr std::string_view ending = " SmartCycle";
    if (name.size() > ending.size() && name.ends_with(ending)) name.resize(name.size() - ending.size());
    return name;
}

bool has_steps(const SharedState& shared, const CyclePopup& popup) { return !steps_of(shared, popup).empty(); }

void fill_cycle_popup(const SharedState& shared, std::string_view command) {
    const ResumeNext attempt(shared.trace);
    const CyclePopup& popup = cycle_popup(command);
    for (const std::string_view place : {"Kestrune.Menu.", "Kestrune.Toolbar."}) {
        ObjectRef control;
        attempt.assign(control,
                       [&] { return shared.spreadsheet().find_control_by_tag(fmt::format("{}{}", place, command)); });
        if (control) fill(shared, popup, control);
    }
}

}  // namespace kestrune::menus
