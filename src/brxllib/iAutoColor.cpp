#include "brxllib/iAutoColor.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "brxllib/autocolor/AutoColor.h"
#include "brxllib/autocolor/BlackFonts.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::method;
using automation::ObjectRef;
using automation::property;

iAutoColor::iAutoColor(std::shared_ptr<Library> library) : library_(std::move(library)), live_(*library_, settings_) {}

void iAutoColor::application_changed() {
    const automation::ResumeNext attempt(library_->trace);
    attempt([&] { live_.update(); });
}

bool iAutoColor::toggle() {
    set<&AutoColorSettings::bAutoColorOn>(!settings_.bAutoColorOn);
    return settings_.bAutoColorOn;
}

void iAutoColor::update_ctrl_enter(bool while_on, bool while_off) {
    live_.ctrl_enter = {while_on, while_off};
    live_.update();
}

void iAutoColor::run_selection() {
    const ObjectRef selected = library_->application.Selection();
    if (excel::Range::is(selected)) run_range(selected);
}

void iAutoColor::run_range(const ObjectRef& range) { AutoColor(*library_, settings_).color(excel::Range(range)); }

void iAutoColor::run_worksheet(const std::optional<ObjectRef>& sheet) {
    const ObjectRef which = sheet ? *sheet : library_->application.ActiveSheet();
    if (excel::Worksheet::is(which)) AutoColor(*library_, settings_).color(excel::Worksheet(which));
}

void iAutoColor::run_workbook(const std::optional<ObjectRef>& workbook) {
    AutoColor(*library_, settings_).color(workbook_or_active(workbook));
}

bool iAutoColor::toggle_black_fonts(const std::optional<ObjectRef>& workbook) {
    const excel::Workbook which = workbook_or_active(workbook);
    const BlackFonts fonts(*library_);
    fonts.toggle(which);
    return fonts.in(which);
}

bool iAutoColor::has_black_fonts(const std::optional<ObjectRef>& workbook) const {
    return BlackFonts(*library_).in(workbook_or_active(workbook));
}

excel::Workbook iAutoColor::workbook_or_active(const std::optional<ObjectRef>& workbook) const {
    return workbook ? excel::Workbook(*workbook) : library_->application.ActiveWorkbook();
}

const MemberTable& iAutoColor::members() {
    using A = iAutoColor;
    using S = AutoColorSettings;
    static constexpr auto rows = automation::member_rows(
        property<&A::get<&S::bAutoColorOn>, &A::set<&S::bAutoColorOn>>("bAutoColorOn", 1),
        property<&A::get<&S::bAutoColorHyperlinks>, &A::set<&S::bAutoColorHyperlinks>>("bAutoColorHyperlinks", 2),
        property<&A::get<&S::bAutoColorText>, &A::set<&S::bAutoColorText>>("bAutoColorText", 3),
        property<&A::get<&S::bAutoColorDate>, &A::set<&S::bAutoColorDate>>("bAutoColorDate", 4),
        property<&A::get<&S::InputColor>, &A::set<&S::InputColor>>("InputColor", 5),
        property<&A::get<&S::PartialInputColor>, &A::set<&S::PartialInputColor>>("PartialInputColor", 6),
        property<&A::get<&S::FormulaColor>, &A::set<&S::FormulaColor>>("FormulaColor", 7),
        property<&A::get<&S::WksLinkColor>, &A::set<&S::WksLinkColor>>("WksLinkColor", 8),
        property<&A::get<&S::WkbLinkColor>, &A::set<&S::WkbLinkColor>>("WkbLinkColor", 9),
        property<&A::get<&S::HyperLinkColor>, &A::set<&S::HyperLinkColor>>("HyperLinkColor", 10),
        automation::read_only<&A::smart_cycle_name>("SmartCycleName", 11), method<&A::toggle>("Toggle", 12),
        method<&A::run_selection>("RunSelection", 13), method<&A::run_worksheet>("RunWorksheet", 14, "[Worksheet]"),
        method<&A::run_workbook>("RunWorkbook", 15, "[Workbook]"), method<&A::run_range>("RunRange", 16, "Range"),
        method<&A::update_ctrl_enter>("UpdateCtrlEnter", 17, "WhileOn, WhileOff"),
        method<&A::toggle_black_fonts>("ToggleBlackFonts", 18, "[Workbook]"),
        method<&A::has_black_fonts>("HasBlackFonts", 19, "[Workbook]"));
    static constexpr MemberTable table("iAutoColor", rows);
    return table;
}

}  // namespace kestrune::brxllib
