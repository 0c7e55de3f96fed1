#pragma once

#include <cstdint>
#include <string_view>

namespace kestrune::brvblib {

// The 1-based position, in UTF-16 units as Visual Basic counts, of the ")" that closes an expression of a formula whose
// "(" stands before the text: the first one that has no "(" of its own. 0 when nothing closes it. Parentheses in texts
// ("a)"), in quoted sheet names ('Q1 (old)'!A1) and in the brackets of tables and workbooks (Table1[Rate (%)]) are no
// parentheses; in such brackets an apostrophe takes the next character for itself.
std::int32_t closing_parenthesis(std::string_view expression);

}  // namespace kestrune::brvblib
