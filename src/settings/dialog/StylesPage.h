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
    // Whether a style other than this one (null for none) may have a name; else a message says why not.
    [[nodiscard]] bool accepts(const std::string& name, const styles::cStyle* style) const;
    void show_list(const styles::cStyle* choice);
    void show_chosen();
    void rename();
    void duplicate();
    void remove();
    void move(std::int32_t step);
};

}  // namespace kestrune::settings
