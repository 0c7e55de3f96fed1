#include "core/iGlobal.h"

#include "automation/ResumeNext.h"
#include "core/CommandTable.h"
#include "core/Dispatcher.h"
#include "core/ExamplesWorkbook.h"
#include "core/Folders.h"
#include "core/Undo.h"
#include "core/iGlobalInterface.h"
#include "excel/Range.h"
#include "settings/AutoColorCommands.h"
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
    // The product menu, which would show other keys from here on, is not in this version.
}

void iGlobal::show_help() const {
    const auto shared = shared_;
    const automation::ResumeNext attempt(shared->trace);
    attempt([&] { shared->general().show_help(); });
}

std::string iGlobal::lesson_path() const { return lessons_folder(*shared_); }

const MemberTable& iGlobal::members() {
    static constexpr auto rows = automation::member_rows(
        automation::method<&iGlobal::br_undo>("BRUndo", id("BRUndo")),
        automation::method<&iGlobal::br_redo>("BRRedo", id("BRRedo")),
        automation::method<&iGlobal::set_br_undo>("SetBRUndo", id("SetBRUndo")),
        automation::method<&iGlobal::toggle_auto_color>("ToggleAutoColor", id("ToggleAutoColor")),
        automation::method<&iGlobal::run_auto_color>("RunAutoColor", id("RunAutoColor")),
        automation::method<&iGlobal::show_examples_workbook>("ShowExamplesWorkbook", id("ShowExamplesWorkbook")),
        automation::method<&iGlobal::show_hot_key_manager>("ShowHotKeyManager", id("ShowHotKeyManager")),
        automation::method<&iGlobal::show_help>("ShowHelp", id("ShowHelp")),
        automation::method<&iGlobal::run_macro>("RunMacro", id("RunMacro"), "Request"),
        automation::read_only<&iGlobal::lesson_path>("LessonPath", id("LessonPath")),
        automation::method<&iGlobal::apply_smart_cycle_style>("ApplySmartCycleStyle", id("ApplySmartCycleStyle"),
                                                              "CycleNumber, Position, Range"),
        automation::method<&iGlobal::toggle_black_fonts>("ToggleBlackFonts", id("ToggleBlackFonts")));
    static constexpr MemberTable table("iGlobal", rows);
    return table;
}

}  // namespace kestrune::core
