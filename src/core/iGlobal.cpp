#include "core/iGlobal.h"

#include "automation/ResumeNext.h"
#include "core/Dispatcher.h"
#include "core/ExamplesWorkbook.h"
#include "core/Folders.h"
#include "core/iGlobalInterface.h"
#include "settings/AutoColorCommands.h"
#include "styles/commands/StyleCycleCommands.h"

namespace kestrune::core {
namespace {

using automation::MemberTable;

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
    styles::ApplySmartCycleStyle(*shared, cycle, position, range);
}

void iGlobal::toggle_auto_color() const {
    const auto shared = shared_;
    settings::toggle_auto_color(*shared);
}

void iGlobal::run_auto_color() const {
    const auto shared = shared_;
    settings::auto_color_selection(*shared, 0);
}

void iGlobal::show_examples_workbook() const {
    const auto shared = shared_;
    core::show_examples_workbook(*shared);
}

void iGlobal::show_help() const {
    const auto shared = shared_;
    const automation::ResumeNext attempt(shared->trace);
    attempt([&] { shared->general().show_help(); });
}

std::string iGlobal::lesson_path() const { return lessons_folder(*shared_); }

const MemberTable& iGlobal::members() {
    static constexpr auto rows = automation::member_rows(
        automation::method<&iGlobal::toggle_auto_color>("ToggleAutoColor", id("ToggleAutoColor")),
        automation::method<&iGlobal::run_auto_color>("RunAutoColor", id("RunAutoColor")),
        automation::method<&iGlobal::show_examples_workbook>("ShowExamplesWorkbook", id("ShowExamplesWorkbook")),
        automation::method<&iGlobal::show_help>("ShowHelp", id("ShowHelp")),
        automation::method<&iGlobal::run_macro>("RunMacro", id("RunMacro"), "Request"),
        automation::read_only<&iGlobal::lesson_path>("LessonPath", id("LessonPath")),
        automation::method<&iGlobal::apply_smart_cycle_style>("ApplySmartCycleStyle", id("ApplySmartCycleStyle"),
                                                              "CycleNumber, Position, Range"));
    static constexpr MemberTable table("iGlobal", rows);
    return table;
}

}  // namespace kestrune::core
