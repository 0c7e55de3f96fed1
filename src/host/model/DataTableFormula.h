#pragma once

#include <string>
#include <string_view>

namespace kestrune::host {

// How Excel shows the formula of a what-if data table: "TABLE(B1,B2)", row input first, the unused one empty.
// `attributes` are those of its <f> element (ECMA-376 18.3.1.40): dt2D, dtr, r1, r2.
[[nodiscard]] std::string data_table_text(std::string_view attributes);

}  // namespace kestrune::host
