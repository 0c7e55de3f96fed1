#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/model/Sheet.h"

namespace kestrune::host {

// What conditional formats put over a cell. Where two set the same component, the first counts.
struct ConditionalMatch {
    std::vector<const DifferentialFormat*> formats;  // of the rules that hold, the first in priority first
    bool complete = true;  // false: a rule on this cell takes a calculation engine and is not shown
};

// Works out the conditional formats of a sheet's cells from stored values: comparisons with constants and single
// cells, texts, blanks, errors, duplicates. Rules of other kinds, and those on values that are yet to be calculated,
// are left out. Sees the sheet as it was when made.
class ConditionalMatcher {
  public:
    explicit ConditionalMatcher(Sheet& sheet);
    [[nodiscard]] ConditionalMatch at(Position position);

  private:
    struct Rule {
        const ConditionalFormat* format;
        const ConditionalRule* rule;
        Position anchor;
        std::optional<std::map<std::string, std::int32_t>> counts;  // of the values in a duplicates rule's areas
    };
    [[nodiscard]] std::optional<bool> holds(Rule& rule, Position at);
    [[nodiscard]] std::optional<bool> duplicated(Rule& rule, Position at);

    Sheet& sheet_;
    std::vector<Rule> rules_;  // by priority
};

// The same for one cell; a matcher is quicker for many.
[[nodiscard]] std::vector<const DifferentialFormat*> conditional_matches(Sheet& sheet, Position position);

}  // namespace kestrune::host
