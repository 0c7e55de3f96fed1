#pragma once

#include <string>
#include <string_view>

#include "settings/dialog/SettingsPage.h"

namespace kestrune::settings {

// The controls of a page for SmartCycles that both kinds of them have.
struct CycleControls {
    std::string_view cycles;   // the list of SmartCycles
    std::string_view name;     // the box with the name of the chosen one
    std::string_view rename;   // the button that gives it that name
    std::string_view entries;  // the list of what it steps through
    std::string_view up;
    std::string_view down;
    std::string_view remove;
};

// A page for SmartCycles of one kind: choosing and renaming them, and reordering and removing what they step through.
class CyclesPage : public SettingsPage {
  public:
    void show() override;

  protected:
    CyclesPage(forms::Form& form, Draft& draft, const CycleControls& controls);

    // The SmartCycles by place, from 0 on; and for the chosen one its entries, likewise.
    [[nodiscard]] virtual std::size_t cycle_count() const = 0;
    [[nodiscard]] virtual std::string& name_of(std::size_t cycle) const = 0;
    [[nodiscard]] virtual std::vector<std::string> entry_texts() const = 0;
    virtual void move_entry(std::int32_t from, std::int32_t to) = 0;
    virtual void remove_entry(std::int32_t entry) = 0;
    // Something else was chosen.
    virtual void cycle_chosen() {}
    virtual void entry_chosen() {}

    [[nodiscard]] std::size_t chosen_cycle() const;
    // Shows the entries anew, and chooses one; -1 for none.
    void show_entries(std::int32_t chosen);

  private:
    void show_cycles(std::int32_t chosen);
    void show_cycle();
    void rename();
    void move(std::int32_t step);
    void enable_buttons() const;

    const CycleControls& controls_;
};

}  // namespace kestrune::settings
