#pragma once

#include <string_view>

namespace kestrune::brxllib {

// Whether a formula (A1, in English) holds a number that somebody assumed: one that a careful modeller would have put
// into a cell of its own. Every number is one, except
//   - arguments that say how a function works: ROUND's digits, VLOOKUP's column, EDATE's months, the parts of DATE;
//   - 0 and 1 as a whole argument: MAX(0,A1), IF(A1>B1,1,0), IFERROR(A1,0);
//   - 0 and 1 that something is compared with: A1=0, B1>=1;
//   - the unit in 1+A1, 1-A1, 1/A1 and (A1+1), at the beginning or after a parenthesis, comma or comparison;
//   - the one taken from a ratio: B1/A1-1.
// 100% is a one, too. So =A1*1.05, =A1+1, =A1/12 and =NPV(0.1,A1:A9) hold one; =B1*(1+C1) and =ROUND(A1,2) do not.
[[nodiscard]] bool holds_hard_coded_number(std::string_view formula);

}  // namespace kestrune::brxllib
