#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "automation/Trace.h"
#include "brxllib/undo/snapshot/Reading.h"
#include "excel/Range.h"
#include "formula/Area.h"
#include "formula/AreaCut.h"

namespace kestrune::brxllib::undo {

// One conditional format. Relative references of its formulas are kept in R1C1, so that they say the same from
// wherever they are looked at.
struct ConditionState {
    std::int32_t type = 0;       // XlFormatConditionType
    std::int32_t operation = 0;  // XlFormatConditionOperator; 0 where the type has none
    std::vector<std::string> formulas{};
    Reading formats{};  // what it shows, an answer a property; Null where it leaves the cells' own
    bool stops = false;
    std::int32_t priority = 0;  // 1 is tried first
    std::vector<formula::Area> applies_to{};

    // The same, wherever it holds and whenever it is tried.
    [[nodiscard]] bool same_rule(const ConditionState& other) const {
        return type == other.type && operation == other.operation && formulas == other.formulas &&
               formats == other.formats && stops == other.stops;
    }
    // Whether Excel can make one like it.
    [[nodiscard]] bool replaceable() const;
    // Of the order in which rules are tried only what comes before what counts.
    bool operator==(const ConditionState& other) const {
        return same_rule(other) && formula::same_cells(applies_to, other.applies_to);
    }
    [[nodiscard]] std::size_t bytes() const;
};

// Reads a conditional format. What it does not have (a second formula) is left empty.
[[nodiscard]] ConditionState read_condition(const excel::FormatCondition& condition, const automation::Trace& trace);
// Makes one for the same cells, tried last. active: the active cell when these are on its sheet, for which Excel then
// takes formulas; else Nothing. Fails as Excel does.
excel::FormatCondition add_condition(const ConditionState& state, const excel::Range& cells, const excel::Range& active,
                                     const automation::Trace& trace);

}  // namespace kestrune::brxllib::undo
