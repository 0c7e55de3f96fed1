#pragma once

#include <string>
#include <string_view>

#include "formula/Edit.h"

namespace kestrune::host {

// How Excel shows the formula of a what-if data table: "TABLE(B1,B2)", row input first, the unused one empty.
// `attributes` are those of its <f> element (ECMA-376 18.3.1.40): dt2D, dtr, r1, r2.
[[nodiscard]] std::string data_table_text(std::string_view attributes);

// The attributes of an <f> element of the edited sheet as they read after the edit: its area (ref), and the input cells
// of a data table, which are marked as deleted when they are gone.
[[nodiscard]] std::string adjust_formula_attributes(std::string_view attributes, const formula::Edit& edit);

}  // namespace kestrune::host
