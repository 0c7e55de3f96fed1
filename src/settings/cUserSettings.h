#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "core/bridges/AutoColorSettings.h"
#include "settings/StyleCycle.h"
#include "styles/cStyleToggle.h"
#include "styles/cStyles.h"

namespace kestrune::settings {

// Everything that a user can set. One record lives while the add-in is loaded; dialogs work on a Copy.
// Created empty.
class cUserSettings {
  public:
    cUserSettings() = default;
    cUserSettings(const cUserSettings&) = delete;
    cUserSettings& operator=(const cUserSettings&) = delete;

    styles::StylesRef Styles = std::make_shared<styles::cStyles>();  // the library
    styles::StyleRef BRPaintbrushStyle;
    styles::StyleRef SheetStyle;
    std::string ErrorMsg;           // a quoted text ("\"NA\"")
    bool TrainingModule = false;    // whether the tutorial menu is shown
    std::int32_t ZoomInterval = 0;  // per cent
    core::AutoColorSettings AutoColor;

    [[nodiscard]] const styles::StyleToggleRef& cycle(StyleCycle field) const {
        return cycles_[static_cast<std::size_t>(field)];
    }
    void set_cycle(StyleCycle field, styles::StyleToggleRef toggle) {
        cycles_[static_cast<std::size_t>(field)] = std::move(toggle);
    }

    // Fills the record with the settings of a fresh installation. Those of AutoColor are the spreadsheet library's.
    void LoadDefaults(const core::AutoColorSettings& auto_color = {});

    // A record with the same values and styles of its own, to which its cycles refer.
    [[nodiscard]] std::shared_ptr<cUserSettings> Copy() const;

  private:
    std::array<styles::StyleToggleRef, style_cycle_count> cycles_;
};

}  // namespace kestrune::settings
