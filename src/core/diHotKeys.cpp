#include "core/diHotKeys.h"

#include "automation/ResumeNext.h"
#include "core/CommandArray.h"
#include "core/Dispatcher.h"
#include "core/ExamplesWorkbook.h"
#include "core/bridges/Product.h"
#include "settings/LiveSettings.h"

namespace kestrune::core {

using automation::MemberTable;
using automation::method;
using automation::ResumeNext;
using automation::Value;

std::string diHotKeys::product() const { return std::string(product_name); }

void diHotKeys::add_default_macro_array(Value& array) const {
    const ResumeNext attempt(shared_->trace);
    attempt([&] { append_command_entries(*shared_, array); });
}

std::string diHotKeys::samples_file_full_name() const { return examples_full_name(*shared_); }

// The members below hold the state, since the last reference to this object may go while they work.

void diHotKeys::show_sample(const std::string& topic) const {
    const auto shared = shared_;
    show_examples_workbook(*shared, topic);
}

void diHotKeys::update_user_settings() const {
    const auto shared = shared_;
    if (shared->general_library) settings::reload_settings(*shared);
}

void diHotKeys::display_array(const Value& array) const {
    const auto shared = shared_;
    const ResumeNext attempt(shared->trace);
    attempt([&] { shared->spreadsheet().display_array(array, product_title); });
}

void diHotKeys::update_ctrl_enter(bool while_on, bool while_off) const {
    const auto shared = shared_;
    const ResumeNext attempt(shared->trace);
    attempt([&] { shared->spreadsheet().update_ctrl_enter(while_on, while_off); });
}

bool diHotKeys::run_macro(std::int32_t number) const {
    const auto shared = shared_;
    return dispatch(*shared, number);
}

const MemberTable& diHotKeys::members() {
    using H = diHotKeys;
    static constexpr auto rows = automation::member_rows(
        automation::read_only<&H::product>("BRProductName", 1),
        method<&H::add_default_macro_array>("AddDefaultMacroArray", 2, "MacroArray"),
        automation::read_only<&H::samples_file_full_name>("SamplesFileFullName", 3),
        method<&H::update_examples_file>("UpdateExamplesFile", 4, "Update"),
        method<&H::show_sample>("ShowSample", 5, "Topic"), method<&H::update_user_settings>("UpdateUserSettings", 6),
        method<&H::display_array>("DisplayKeyArray", 7, "Keys"),
        method<&H::display_array>("DisplayMacroArray", 8, "Macros"),
        method<&H::display_array>("DisplayHotKeyArray", 9, "HotKeys"),
        method<&H::update_ctrl_enter>("UpdateCtrlEnter", 10, "WhileOn, WhileOff"),
        method<&H::run_macro>("RunMacro", 11, "Number"));
    static constexpr MemberTable table("diHotKeys", rows);
    return table;
}

}  // namespace kestrune::core
