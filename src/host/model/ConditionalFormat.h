#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formula/Area.h"

namespace kestrune::host {

// One rule of a conditional format (ECMA-376 18.3.1.10). Rules that nobody here can make (colour
// scales, data bars, icon sets ...) keep their XML in `source` and are carried along.
struct ConditionalRule {
    std::string type;                   // "cellIs", "expression", "colorScale" ...
    std::string operator_name;          // "greaterThan", "between" ...; empty where the type has none
    std::vector<std::string> formulas;  // without "="
    std::int32_t priority = 0;          // 1 is applied first; unique in the sheet
    bool stop_if_true = false;
    std::optional<std::uint32_t> differential;  // position in StyleTable::differentials
    std::string source;                         // the whole element as the file has it; empty for a rule of ours
    std::int32_t handle = 0;                    // by which it is known while its priority changes; 0: to nobody yet
};

// The rules that hold for one set of areas.
struct ConditionalFormat {
    std::vector<formula::Area> areas;
    std::vector<ConditionalRule> rules;
    bool pivot = false;
    bool extension = false;  // stands in the sheet's extension list (x14), not among its own
    // The cell that the rules' relative references are written for: the corner of all areas together.
    [[nodiscard]] formula::Position anchor() const;

    std::string source;  // an extension's whole element as the file has it
};

}  // namespace kestrune::host
