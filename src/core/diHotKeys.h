#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "core/bridges/SharedState.h"

namespace kestrune::core {

// What the general library's hot keys ask of this product, and how they run its commands. Nothing that fails leaves a
// member.
class diHotKeys : public automation::Served<diHotKeys> {
  public:
    explicit diHotKeys(std::shared_ptr<SharedState> shared) : shared_(std::move(shared)) {}
    static const automation::MemberTable& members();

  private:
    [[nodiscard]] std::string product() const;
    // The commands' entries, appended to the array (CommandArray.h). What is no array stays as it is.
    void add_default_macro_array(automation::Value& array) const;
    [[nodiscard]] std::string samples_file_full_name() const;
    // The examples need no bringing up to date from here: their own macro does it when they are shown.
    void update_examples_file(bool) {}
    // Opens the examples workbook where a topic begins.
    void show_sample(const std::string& topic) const;
    // Reads the user settings again and works by them.
    void update_user_settings() const;
    // Shows an array of the hot-key manager. All three kinds look the same.
    void display_array(const automation::Value& array) const;
    // Whether fills by Ctrl+Enter are coloured while AutoColor is on, and while it is off.
    void update_ctrl_enter(bool while_on, bool while_off) const;
    // Runs a command by its number; whether one could run.
    [[nodiscard]] bool run_macro(std::int32_t number) const;

    std::shared_ptr<SharedState> shared_;
};

}  // namespace kestrune::core
