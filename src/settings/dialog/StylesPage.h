#pragma once

#include "settings/dialog/SettingsPage.h"

namespace kestrune::settings {

// The library of styles. Those that come with the product as standards can be duplicated and moved, not changed.
class StylesPage final : public SettingsPage {
  public:
    StylesPage(forms::Form& form, Draft& draft);

    void show() override;

  private:
    [[nodiscard]] styles::StyleRef chosen() const;
    // The chosen style when it may be changed; else a message says why not, and this is null.
    [[nodiscard]] styles::StyleRef changeable() const;
    void show_list(const styles::cStyle* choice);
    void show_chosen();
    void rename();
    void edit();
    // Has a new style of these fields edited, and put behind the chosen one.
    void make(styles::StyleFields fields);
    void make_from_cell();
    void duplicate();
    void remove();
    void move(std::int32_t step);
};

}  // namespace kestrune::settings
