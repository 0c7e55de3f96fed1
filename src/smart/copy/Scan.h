#pragma once

#include <cstdint>
#include <vector>

#include "settings/SmartOptions.h"

namespace kestrune::smart {

// Which lines (rows, or columns) get a copy, as the dialog offers it.
enum class ScanChoice : std::uint8_t {
    Contiguous,    // while there are labels without a gap
    Intervals,     // labels with gaps of no more than X lines
    All,           // every label
    AllIntervals,  // every (X + 1)-th line, as far as there are labels
};

// The choice that options stand for, and the options of a choice. Skip tells Contiguous from All, and means nothing
// else.
[[nodiscard]] ScanChoice scan_choice(const settings::SmartCopyOptions& options);
void choose_scan(settings::SmartCopyOptions& options, ScanChoice choice);

// A walk over the lines behind the one that is copied.
struct Scan {
    std::int32_t index = 0;     // the line reached, from 1 on
    std::int32_t last = 0;      // the last one allowed
    std::int32_t interval = 0;  // X
    bool always = false;        // by regular intervals
};

// One step: to the next line, or by regular intervals over X lines to the one behind them. At the last line nothing
// happens; a step by intervals may lead beyond it. AutomationError (overflow) where the step leads out of 32 bits.
void AdvanceToNextTarget(Scan& scan);

// The lines that get a copy, in order. labelled: whether each line from the copied one on has a label, as far as the
// last label; first: the copied line, from 1 on.
[[nodiscard]] std::vector<std::int32_t> target_lines(const std::vector<bool>& labelled, std::int32_t first,
                                                     ScanChoice choice, std::int32_t interval);

}  // namespace kestrune::smart
