#include "settings/dialog/StyleCyclesPage.h"

#include <algorithm>

#include "settings/dialog/StylesOfKind.h"

namespace kestrune::settings {

using forms::Event;
using styles::StyleRef;

namespace {

constexpr CycleControls controls{"lstStyleToggles", "txtStyleToggleName", "btnRenameStyleToggle", "lstToggleStyles",
                                 "btnStyleUp",      "btnStyleDown",       "btnStyleRemove"};

}  // namespace

StyleCyclesPage::StyleCyclesPage(forms::Form& form, Draft& draft) : CyclesPage(form, draft, controls) {
    form.on("cmbCycleStyleKind", Event::Change, [this](auto&) {
        if (!filling()) show_library();
    });
    form.on("btnAddStyle", Event::Click, [this](auto&) { add(); });
    form.on("lstAllStyles", Event::DblClick, [this](auto&) { add(); });
    form.on("lstAllStyles", Event::Change,
            [this](auto&) { at("btnAddStyle").Enabled(at("lstAllStyles").ListIndex() >= 0); });
}

void StyleCyclesPage::show() {
    CyclesPage::show();
    show_library();
}

void StyleCyclesPage::show_styles() {
    show_entries(std::min(at("lstToggleStyles").ListIndex(), entries().Count() - 1));
    show_library();
}

std::string& StyleCyclesPage::name_of(std::size_t cycle) const {
    return settings().cycle(static_cast<StyleCycle>(cycle))->Name;
}

styles::cStyles& StyleCyclesPage::entries() const {
    return *settings().cycle(static_cast<StyleCycle>(chosen_cycle()))->Styles;
}

std::vector<std::string> StyleCyclesPage::entry_texts() const { return names_of(entries()); }

void StyleCyclesPage::move_entry(std::int32_t from, std::int32_t to) { entries().Move(from + 1, to + 1); }

void StyleCyclesPage::remove_entry(std::int32_t entry) { entries().Remove(entry + 1); }

void StyleCyclesPage::show_library() {
    fill("cmbCycleStyleKind", at("cmbCycleStyleKind").List(), std::max(0, at("cmbCycleStyleKind").ListIndex()));
    const auto listed = styles_of_kind(settings(), at("cmbCycleStyleKind").ListIndex());
    const auto names = names_of(*listed);
    fill("lstAllStyles", names, std::min(std::max(0, at("lstAllStyles").ListIndex()), listed->Count() - 1));
    at("btnAddStyle").Enabled(at("lstAllStyles").ListIndex() >= 0);
}

void StyleCyclesPage::add() {
    const StyleRef style = settings().Styles->Item(at("lstAllStyles").Text());
    if (!style) return;
    // Behind the chosen one; in an empty cycle, or with none chosen, at its end.
    const std::int32_t behind = at("lstToggleStyles").ListIndex() + 1;
    if (!entries().Add(style, {}, behind, behind > 0)) return tell(core::Text::StyleIsInCycle, style->FriendlyName);
    show_entries(entries().position_of(*style) - 1);
}

}  // namespace kestrune::settings
