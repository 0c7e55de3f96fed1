#pragma once

#include <array>
#include <memory>
#include <string>
#include <utility>

#include "settings/NumericCycle.h"
#include "settings/SettingValues.h"
#include "settings/StyleCycle.h"
#include "styles/cLongToggle.h"
#include "styles/cStyleToggle.h"
#include "styles/cStyles.h"

namespace kestrune::settings {

// What the default settings take from elsewhere.
struct DefaultSources {
    core::AutoColorSettings auto_color{};  // the spreadsheet library's constants
    std::string respected_cycle{};         // the name of the SmartCycle whose colours AutoColor leaves alone
    bool training = true;                  // whether the tutorial is installed
    automation::Date today{};              // the default fill dates are those of its year
};

// Everything that a user can set. One record lives while the add-in is loaded; dialogs work on a Copy.
// Created empty, each cycle without a step.
class cUserSettings : public SettingValues {
  public:
    cUserSettings();
    cUserSettings(const cUserSettings&) = delete;
    cUserSettings& operator=(const cUserSettings&) = delete;

    styles::StylesRef Styles = std::make_shared<styles::cStyles>();  // the library
    styles::StyleRef BRPaintbrushStyle;
    styles::StyleRef SheetStyle;

    [[nodiscard]] const styles::LongToggleRef& cycle(NumericCycle field) const {
        return numeric_cycles_[static_cast<std::size_t>(field)];
    }
    // Never null.
    void set_cycle(NumericCycle field, styles::LongToggleRef toggle) {
        numeric_cycles_[static_cast<std::size_t>(field)] = std::move(toggle);
    }
    [[nodiscard]] const styles::StyleToggleRef& cycle(StyleCycle field) const {
        return style_cycles_[static_cast<std::size_t>(field)];
    }
    void set_cycle(StyleCycle field, styles::StyleToggleRef toggle) {
        style_cycles_[static_cast<std::size_t>(field)] = std::move(toggle);
    }

    // Fills the record with the settings of a fresh installation.
    void LoadDefaults(const DefaultSources& sources = {});

    // A record with the same values and with styles and cycles of its own.
    [[nodiscard]] std::shared_ptr<cUserSettings> Copy() const;

  private:
    std::array<styles::LongToggleRef, numeric_cycle_count> numeric_cycles_;
    std::array<styles::StyleToggleRef, style_cycle_count> style_cycles_;
};

}  // namespace kestrune::settings
