#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrune::smart {

// An R1C1 formula for a line that lies some lines behind the one that was written last: references to earlier lines
// (R[-1]) reach over those that were skipped, so that they still mean the line written last. References to the line
// itself, to later ones and absolute ones stay, as does what is no formula. Rows and columns count from 1.
[[nodiscard]] std::string AdjustRowOffsets(std::int32_t source_row, std::int32_t target_row, std::string_view formula);
// The same of columns (C[-1]).
[[nodiscard]] std::string AdjustColumnOffsets(std::int32_t source_column, std::int32_t target_column,
                                              std::string_view formula);

}  // namespace kestrune::smart
