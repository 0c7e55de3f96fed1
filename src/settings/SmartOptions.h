#pragma once

#include <cstdint>
#include <string>

#include "automation/Value.h"

namespace kestrune::settings {

// What the Smart tools do until the user changes it. A tool shows its dialog first while Show is on.

// Copying to the labelled columns at the right, or to the labelled rows below.
struct SmartCopyOptions {
    std::string Intervals = "INTERVAL";  // or ALL: how far apart the labels may be
    std::int32_t IntervalValues = 1;     // rows or columns
    std::string Rule = "FILL";           // or ALWAYS: by regular intervals
    bool Skip = true;                    // step over rows or columns without a label
    bool Formulas = false;               // skip cells with formulas
    bool Values = false;                 // skip cells whose value satisfies the condition
    bool Text = true;                    // skip cells with text
    std::string Operator = "0";          // of the condition; not kept in the preferences file
    std::string Value;                   // at the right of the operator
    bool Format = true;                  // copy font, number format and horizontal alignment as well
    bool Adjust = false;                 // adjust formulas for what was skipped
    bool Show = true;

    bool operator==(const SmartCopyOptions&) const = default;
};

struct SmartFillDatesOptions {
    automation::Date StartDate;
    automation::Date EndDate;
    std::string DateUnit = "m";  // or d, yyyy: what a step is
    std::string Style = "BR Date Short 1 (US)";
    bool Across = true;
    std::int32_t Spacing = 1;  // cells a step
    bool Show = true;

    bool operator==(const SmartFillDatesOptions&) const = default;
};

struct SmartFillNumbersOptions {
    double StartValue = 1;
    double EndValue = 10;
    double Interval = 1;
    std::int32_t Type = 1;  // numbers, currency or percentages
    std::string Style = "BR General";
    bool Across = false;
    std::int32_t Spacing = 1;
    bool Show = true;

    bool operator==(const SmartFillNumbersOptions&) const = default;
};

struct SmartFmlaRowSpacingOptions {
    std::int32_t FmlaRows = 2;
    std::int32_t ReferenceRows = 1;
    bool Show = true;

    bool operator==(const SmartFmlaRowSpacingOptions&) const = default;
};

struct SmartFmlaColSpacingOptions {
    std::int32_t FmlaCols = 2;
    std::int32_t ReferenceCols = 1;
    bool Show = true;

    bool operator==(const SmartFmlaColSpacingOptions&) const = default;
};

}  // namespace kestrune::settings
