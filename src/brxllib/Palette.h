#pragma once

#include <array>
#include <cstdint>

#include "excel/Workbook.h"

namespace kestrune::brxllib {

// The 56 colours of a workbook, BGR; entry 1 stands first.
using Palette = std::array<std::int32_t, 56>;

// One call to Excel. Fails when Excel does, or answers something else than 56 colours.
Palette palette_of(const excel::Workbook& workbook);

// The entry (1 to 56) at the smallest distance in red, green and blue; of equals, the first.
std::int32_t nearest_entry(const Palette& palette, std::int32_t color);

}  // namespace kestrune::brxllib
