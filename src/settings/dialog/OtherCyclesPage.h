#pragma once

#include <optional>

#include "settings/dialog/CyclesPage.h"

namespace kestrune::settings {

// The numeric SmartCycles: indents, row heights, column widths and font colours.
class OtherCyclesPage final : public CyclesPage {
  public:
    OtherCyclesPage(forms::Form& form, Draft& draft);

  private:
    [[nodiscard]] std::size_t cycle_count() const override { return numeric_cycle_count; }
    [[nodiscard]] std::string& name_of(std::size_t cycle) const override;
    [[nodiscard]] std::vector<std::string> entry_texts() const override;
    void move_entry(std::int32_t from, std::int32_t to) override;
    void remove_entry(std::int32_t entry) override;
    void cycle_chosen() override;
    void entry_chosen() override;

    [[nodiscard]] styles::cLongToggle& cycle() const;
    [[nodiscard]] bool has_colors() const;
    [[nodiscard]] std::string text_of(double value) const;
    // The value in the box; nothing (and a message) when it is none for this cycle, or in it already.
    [[nodiscard]] std::optional<double> new_value();
    void show_patch();
    void add();
    void change();
};

}  // namespace kestrune::settings
