#pragma once

#include <cstdint>
#include <string>

#include "core/bridges/AutoColorSettings.h"
#include "settings/SmartOptions.h"

namespace kestrune::settings {

// The settings that are plain values, those of AutoColor among them.
struct SettingValues : core::AutoColorSettings {
    std::string ErrorMsg;           // a quoted text ("\"NA\"")
    bool TrainingModule = false;    // whether the tutorial menu is shown
    std::int32_t ZoomInterval = 0;  // per cent
    SmartCopyOptions SmartCopyRight;
    SmartCopyOptions SmartCopyDown;
    SmartFillDatesOptions SmartFillDates;
    SmartFillNumbersOptions SmartFillNumbers;
    SmartFmlaRowSpacingOptions SmartFmlaRowSpacing;
    SmartFmlaColSpacingOptions SmartFmlaColSpacing;

    bool operator==(const SettingValues&) const = default;
};

}  // namespace kestrune::settings
