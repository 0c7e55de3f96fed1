#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "core/bridges/SharedState.h"

namespace kestrune::core {

// The command object: every menu item, button and key ends in one of its members. All objects share one state, and
// outlive it: after shut-down, or a start-up that failed, their members do nothing.
class iGlobal : public automation::Served<iGlobal> {
  public:
    explicit iGlobal(std::shared_ptr<SharedState> shared) : shared_(std::move(shared)) {}
    static const automation::MemberTable& members();

  private:
    // Runs a numbered command ("19", "20.3"); whether one could run.
    bool run_macro(const automation::Value& request) const;
    void show_examples_workbook() const;
    // Shows which command has which key.
    void show_hot_key_manager() const;
    // Shows the settings dialog.
    void show_user_settings() const;
    // Opens the product's help; a help that cannot be opened is told to the user.
    void show_help() const;
    // The folder of the lesson workbooks, a separator at its end.
    [[nodiscard]] std::string lesson_path() const;
    // Applies one step (from 1) of a user style SmartCycle (1 to 15) to a range.
    void apply_smart_cycle_style(std::int32_t cycle, std::int32_t position, const automation::ObjectRef& range) const;

    // Takes the last step back, or does it again. What stands in the way is told to the user.
    void br_undo() const;
    void br_redo() const;
    // Records the selection: what happens to it until the next step, undo or redo can be undone as one.
    void set_br_undo() const;

    void toggle_auto_color() const;
    void run_auto_color() const;  // on the selection, whatever the moment
    void toggle_black_fonts() const;

    // Opens a lesson by its file name, else the one whose menu item was clicked.
    void show_lesson(const std::optional<std::string>& lesson) const;
    // The name of a user style SmartCycle (1 to 15) and those of its styles, in an array counted from 0; Empty for any
    // other number.
    [[nodiscard]] automation::Value custom_smart_cycle_info(std::int32_t cycle) const;
    // What the menus, boxes and popups of src/menus do. The popup is that of a SmartCycle's command.
    template <auto body>
    void act() const;
    template <std::int32_t command>
    void fill_popup() const;

    std::shared_ptr<SharedState> shared_;
};

}  // namespace kestrune::core
