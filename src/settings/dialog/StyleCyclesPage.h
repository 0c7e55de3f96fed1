#pragma once

#include "settings/dialog/CyclesPage.h"

namespace kestrune::settings {

// The style SmartCycles.
class StyleCyclesPage final : public CyclesPage {
  public:
    StyleCyclesPage(forms::Form& form, Draft& draft);

    void show() override;
    void show_styles() override;

  private:
    [[nodiscard]] std::size_t cycle_count() const override { return style_cycle_count; }
    [[nodiscard]] std::string& name_of(std::size_t cycle) const override;
    [[nodiscard]] std::vector<std::string> entry_texts() const override;
    void move_entry(std::int32_t from, std::int32_t to) override;
    void remove_entry(std::int32_t entry) override;

    [[nodiscard]] styles::cStyles& entries() const;
    void show_library();
    void add();
};

}  // namespace kestrune::settings
