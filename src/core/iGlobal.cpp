#include "core/iGlobal.h"

#include "automation/ResumeNext.h"
#include "core/CommandTable.h"
#include "core/Dispatcher.h"
#include "core/ExamplesWorkbook.h"
#include "core/Folders.h"
#include "core/Undo.h"
#include "core/iGlobalInterface.h"
#include "excel/Range.h"
#include "menus/AboutTexts.h"
#include "menus/CyclePopups.h"
#include "menus/TutorialMenu.h"
#include "menus/mMenus.h"
#include "settings/AutoColorCommands.h"
#include "settings/cUserSettings.h"
#include "settings/dialog/fUserSettings.h"
#include "smart/ToolOptions.h"
#include "styles/commands/StyleCycleCommands.h"

namespace kestrune::core {
namespace {

using automation::MemberTable;

constexpr std::size_t auto_color_command = 15;  // of the selection

// A member that the interface does not name does not compile.
consteval std::int32_t id(std::string_view member) {
    if (iglobal_id(member) == 0) throw "iGlobal has no such member";
    return iglobal_id(member);
}

}  // namespace

template <auto body>
void iGlobal::act() const {
    // Held, since the last reference to this object may go while the body runs.
    const auto shared = shared_;
    if (shared->general_library) body(*shared);
}

template <std::int32_t command>
void iGlobal::fill_popup() const {
    const auto shared = shared_;
    if (shared->spreadsheet_library) menus::fill_cycle_popup(*shared, std::to_string(command));
}

bool iGlobal::run_macro(const automation::Value& request) const {
    // Held, since the last reference to this object may go while the command runs.
    const auto shared = shared_;
    return dispatch(*shared, request);
}

void iGlobal::apply_smart_cycle_style(std::int32_t cycle, std::int32_t position,
                                      const automation::ObjectRef& range) const {
    const auto shared = shared_;
    if (!settings::is_my_style_cycle(cycle) || !excel::Range::is(range)) return;
    const automation::ResumeNext attempt(shared->trace);
    std::string name;
    const auto field = settings::my_style_cycle(static_cast<std::size_t>(cycle));
    attempt.assign(name, [&] { return styles::name_of_cycle(*shared, field); });
    {
        const UndoStep step(*shared, name, {Reach::Recorded, Aspects::None});
        if (!step.wanted() || !step.record(range, Aspects::Formats)) return;
        styles::ApplySmartCycleStyle(*shared, cycle, position, range);
    }
    arm_undo(*shared);
}

void iGlobal::br_undo() const {
    const auto shared = shared_;
    undo(*shared);
}

void iGlobal::br_redo() const {
    const auto shared = shared_;
    redo(*shared);
}

void iGlobal::set_br_undo() const {
    const auto shared = shared_;
    set_undo_point(*shared);
}

void iGlobal::toggle_auto_color() const {
    const auto shared = shared_;
    settings::toggle_auto_color(*shared);
}

void iGlobal::run_auto_color() const {
    const auto shared = shared_;
    run_as_step(*shared, commands()[auto_color_command], 0);
    arm_undo(*shared);
}

void iGlobal::toggle_black_fonts() const {
    const auto shared = shared_;
    settings::toggle_black_fonts(*shared);
    arm_undo(*shared);
}

void iGlobal::show_examples_workbook() const {
    const auto shared = shared_;
    core::show_examples_workbook(*shared);
}

void iGlobal::show_hot_key_manager() const {
    const auto shared = shared_;
    const automation::ResumeNext attempt(shared->trace);
    attempt([&] { shared->general().show_hot_key_manager(); });
    menus::refresh_menus(*shared);
}

void iGlobal::show_user_settings() const {
    const auto shared = shared_;
    settings::ShowUserSettings(*shared, smart::tools_with_options());
    // The tutorial menu comes and goes with a setting, and popups are called after their SmartCycles.
    menus::refresh_menus(*shared);
}

void iGlobal::show_help() const {
    const auto shared = shared_;
    const automation::ResumeNext attempt(shared->trace);
    attempt([&] { shared->general().show_help(); });
}

void iGlobal::show_lesson(const std::optional<std::string>& lesson) const {
    const auto shared = shared_;
    if (shared->spreadsheet_library) menus::ShowLesson(*shared, lessons_folder(*shared), lesson.value_or(""));
}

automation::Value iGlobal::custom_smart_cycle_info(std::int32_t cycle) const {
    if (!shared_->user_settings || !settings::is_my_style_cycle(cycle)) return {};
    const auto& toggle = shared_->settings().cycle(settings::my_style_cycle(static_cast<std::size_t>(cycle)));
    if (!toggle) return {};
    const std::int32_t steps = toggle->Styles->Count();
    automation::Array info(automation::Array::Bound{0, steps + 1});
    info.at(0) = toggle->Name;
    for (std::int32_t step = 1; step <= steps; ++step) info.at(step) = toggle->Styles->Item(step)->FriendlyName;
    return info;
}

std::string iGlobal::lesson_path() const { return lessons_folder(*shared_); }

const MemberTable& iGlobal::members() {
    static constexpr auto rows = automation::member_rows(
        automation::method<&iGlobal::act<menus::CreateBRMenus>>("CreateBRMenus", id("CreateBRMenus")),
        automation::method<&iGlobal::act<menus::BRMenuState>>("BRMenuState", id("BRMenuState")),
        automation::method<&iGlobal::act<menus::DeleteBRMenus>>("DeleteBRMenus", id("DeleteBRMenus")),
        automation::method<&iGlobal::br_undo>("BRUndo", id("BRUndo")),
        automation::method<&iGlobal::br_redo>("BRRedo", id("BRRedo")),
        automation::method<&iGlobal::set_br_undo>("SetBRUndo", id("SetBRUndo")),
        automation::method<&iGlobal::toggle_auto_color>("ToggleAutoColor", id("ToggleAutoColor")),
        automation::method<&iGlobal::run_auto_color>("RunAutoColor", id("RunAutoColor")),
        automation::method<&iGlobal::act<menus::ToggleToolbar>>("ToggleToolbar", id("ToggleToolbar")),
        automation::method<&iGlobal::show_examples_workbook>("ShowExamplesWorkbook", id("ShowExamplesWorkbook")),
        automation::method<&iGlobal::show_hot_key_manager>("ShowHotKeyManager", id("ShowHotKeyManager")),
        automation::method<&iGlobal::show_user_settings>("ShowUserSettings", id("ShowUserSettings")),
        automation::method<&iGlobal::act<menus::ShowAboutBrannoch>>("ShowAboutBrannoch", id("ShowAboutBrannoch")),
        automation::method<&iGlobal::show_help>("ShowHelp", id("ShowHelp")),
        automation::method<&iGlobal::run_macro>("RunMacro", id("RunMacro"), "Request"),
        automation::method<&iGlobal::act<menus::UpdateMenuPopup>>("UpdateMenuPopup", id("UpdateMenuPopup")),
        automation::method<&iGlobal::act<menus::UpdateTogglesPopup>>("UpdateTogglesPopup", id("UpdateTogglesPopup")),
        automation::method<&iGlobal::fill_popup<19>>("UpdateGeneralStyleTogglePopup",
                                                     id("UpdateGeneralStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<20>>("UpdateCurrencyStyleTogglePopup",
                                                     id("UpdateCurrencyStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<21>>("UpdatePercentStyleTogglePopup",
                                                     id("UpdatePercentStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<22>>("UpdateMultipleStyleTogglePopup",
                                                     id("UpdateMultipleStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<23>>("UpdateDateStyleTogglePopup", id("UpdateDateStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<24>>("UpdateBinaryStyleTogglePopup",
                                                     id("UpdateBinaryStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<25>>("UpdateUnderlineStyleTogglePopup",
                                                     id("UpdateUnderlineStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<26>>("UpdateCenterStyleTogglePopup",
                                                     id("UpdateCenterStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<27>>("UpdateHAlignStyleTogglePopup",
                                                     id("UpdateHAlignStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<28>>("UpdateVAlignStyleTogglePopup",
                                                     id("UpdateVAlignStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<29>>("UpdateBorderStyleTogglePopup",
                                                     id("UpdateBorderStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<30>>("UpdateCellColorStyleTogglePopup",
                                                     id("UpdateCellColorStyleTogglePopup")),
        automation::method<&iGlobal::fill_popup<31>>("UpdateMyStyleToggle1Popup", id("UpdateMyStyleToggle1Popup")),
        automation::method<&iGlobal::fill_popup<32>>("UpdateMyStyleToggle2Popup", id("UpdateMyStyleToggle2Popup")),
        automation::method<&iGlobal::fill_popup<33>>("UpdateMyStyleToggle3Popup", id("UpdateMyStyleToggle3Popup")),
        automation::method<&iGlobal::fill_popup<34>>("UpdateMyStyleToggle4Popup", id("UpdateMyStyleToggle4Popup")),
        automation::method<&iGlobal::fill_popup<35>>("UpdateMyStyleToggle5Popup", id("UpdateMyStyleToggle5Popup")),
        automation::method<&iGlobal::fill_popup<36>>("UpdateMyStyleToggle6Popup", id("UpdateMyStyleToggle6Popup")),
        automation::method<&iGlobal::fill_popup<37>>("UpdateMyStyleToggle7Popup", id("UpdateMyStyleToggle7Popup")),
        automation::method<&iGlobal::fill_popup<38>>("UpdateMyStyleToggle8Popup", id("UpdateMyStyleToggle8Popup")),
        automation::method<&iGlobal::fill_popup<39>>("UpdateMyStyleToggle9Popup", id("UpdateMyStyleToggle9Popup")),
        automation::method<&iGlobal::fill_popup<40>>("UpdateMyStyleToggle10Popup", id("UpdateMyStyleToggle10Popup")),
        automation::method<&iGlobal::fill_popup<41>>("UpdateMyStyleToggle11Popup", id("UpdateMyStyleToggle11Popup")),
        automation::method<&iGlobal::fill_popup<42>>("UpdateMyStyleToggle12Popup", id("UpdateMyStyleToggle12Popup")),
        automation::method<&iGlobal::fill_popup<43>>("UpdateMyStyleToggle13Popup", id("UpdateMyStyleToggle13Popup")),
        automation::method<&iGlobal::fill_popup<44>>("UpdateMyStyleToggle14Popup", id("UpdateMyStyleToggle14Popup")),
        automation::method<&iGlobal::fill_popup<45>>("UpdateMyStyleToggle15Popup", id("UpdateMyStyleToggle15Popup")),
        automation::method<&iGlobal::fill_popup<46>>("UpdateMyColorToggle1Popup", id("UpdateMyColorToggle1Popup")),
        automation::method<&iGlobal::fill_popup<47>>("UpdateMyColorToggle2Popup", id("UpdateMyColorToggle2Popup")),
        automation::method<&iGlobal::fill_popup<48>>("UpdateMyColorToggle3Popup", id("UpdateMyColorToggle3Popup")),
        automation::method<&iGlobal::fill_popup<49>>("UpdateMyColorToggle4Popup", id("UpdateMyColorToggle4Popup")),
        automation::method<&iGlobal::fill_popup<50>>("UpdateMyColorToggle5Popup", id("UpdateMyColorToggle5Popup")),
        automation::method<&iGlobal::fill_popup<58>>("UpdateLeftIndentTogglePopup", id("UpdateLeftIndentTogglePopup")),
        automation::method<&iGlobal::fill_popup<97>>("UpdateRightIndentTogglePopup",
                                                     id("UpdateRightIndentTogglePopup")),
        automation::method<&iGlobal::fill_popup<59>>("UpdateRowHeightTogglePopup", id("UpdateRowHeightTogglePopup")),
        automation::method<&iGlobal::fill_popup<60>>("UpdateColumnWidthTogglePopup",
                                                     id("UpdateColumnWidthTogglePopup")),
        automation::method<&iGlobal::act<menus::AboutSmartCycles>>("AboutSmartCycles", id("AboutSmartCycles")),
        automation::method<&iGlobal::act<menus::AboutBRPaintbrush>>("AboutBRPaintbrush", id("AboutBRPaintbrush")),
        automation::method<&iGlobal::act<menus::AboutHidingAndUnhiding>>("AboutHidingAndUnhiding",
                                                                         id("AboutHidingAndUnhiding")),
        automation::method<&iGlobal::act<menus::AboutTrainingMenu>>("AboutTrainingMenu", id("AboutTrainingMenu")),
        automation::read_only<&iGlobal::lesson_path>("LessonPath", id("LessonPath")),
        automation::method<&iGlobal::act<menus::ShowLessonErrMsg>>("ShowLessonErrMsg", id("ShowLessonErrMsg")),
        automation::method<&iGlobal::custom_smart_cycle_info>("CustomSmartCycleInfo", id("CustomSmartCycleInfo"),
                                                              "CycleNumber"),
        automation::method<&iGlobal::apply_smart_cycle_style>("ApplySmartCycleStyle", id("ApplySmartCycleStyle"),
                                                              "CycleNumber, Position, Range"),
        automation::method<&iGlobal::toggle_black_fonts>("ToggleBlackFonts", id("ToggleBlackFonts")),
        automation::method<&iGlobal::show_lesson>("ShowLesson", id("ShowLesson"), "[Lesson]"));
    static constexpr MemberTable table("iGlobal", rows);
    return table;
}

}  // namespace kestrune::core
