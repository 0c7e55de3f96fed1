#include "cli/show/Classes.h"

#include <fmt/format.h>

#include <algorithm>

#include "cli/prefs/StyleLine.h"
#include "formula/A1.h"

namespace kestrune::cli {

using brxllib::CellClass;
using formula::Area;

namespace {

// Enough for calls not to count, few enough for the answer to fit the memory.
constexpr std::int64_t most_cells_at_once = 200'000;

}  // namespace

Classes::Classes(const excel::Worksheet& sheet, const Area& area, const brxllib::AutoColorSettings& rules)
    : block_{area, {}}, rules_(rules) {
    const automation::Trace nobody;
    brxllib::ClassReader reader(sheet, rules.bAutoColorHyperlinks, nobody);
    const auto rows = static_cast<std::int32_t>(std::max<std::int64_t>(1, most_cells_at_once / area.columns()));
    for (std::int32_t row = area.first_row; row <= area.last_row; row += rows) {
        const Area part{row, area.first_column, std::min(area.last_row, row + rows - 1), area.last_column};
        const brxllib::ClassBlock read = reader.read(sheet.Range(formula::area_text(part)), part);
        block_.cells.insert(block_.cells.end(), read.cells.begin(), read.cells.end());
    }
    for (const CellClass cell : block_.cells) ++counts_[static_cast<std::size_t>(cell)];
}

CellClass Classes::at(formula::Position position) const {
    if (!block_.area.contains(position)) return CellClass::Empty;
    return block_.cells[static_cast<std::size_t>(block_.place_of(position))];
}

std::string count_and_color(const Classes& classes, CellClass cell) {
    const auto color = classes.color(cell);
    return color ? fmt::format("{} {}", classes.count(cell), color_text(*color)) : fmt::to_string(classes.count(cell));
}

}  // namespace kestrune::cli
