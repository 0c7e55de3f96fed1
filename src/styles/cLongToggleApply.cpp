#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "excel/Constants.h"
#include "excel/Workbook.h"
#include "styles/RightIndent.h"
#include "styles/cLongToggle.h"

namespace kestrune::styles {
namespace {

using automation::to_double;
using automation::to_integer;
using excel::Range;
using excel::Value;

// The palette colour that stands for the font's. The automatic colour is in no palette; it shows as black.
std::int32_t palette_color(const Range& cell) {
    const Value index = cell.Font().ColorIndex();
    return index == Value(excel::xlColorIndexAutomatic) ? 0 : cell.Worksheet().Parent().Colors(index);
}

}  // namespace

void cLongToggle::ApplyAsIndents(const core::SharedState& shared, const Range& range, std::int32_t position) {
    step(shared.trace, range, position,
         {.read = [](const Range& cell) { return to_double(cell.IndentLevel()); },
          .write = [](const Range& cells, double level) { cells.IndentLevel(to_integer(level)); }});
}

void cLongToggle::ApplyAsRightIndents(const core::SharedState& shared, const Range& range, std::int32_t position) {
    if (!range) return;
    const RightIndent indent(shared);
    step(shared.trace, range, position,
         {.read = [&](const Range& cell) { return indent.of(cell); },
          .write = [&](const Range& cells, double level) { indent.write(cells, to_integer(level)); }});
}

void cLongToggle::ApplyAsRowHeight(const core::SharedState& shared, const Range& range, std::int32_t position) {
    step(shared.trace, range, position,
         {.read = [](const Range& cell) { return to_double(cell.RowHeight()); },
          .write = [](const Range& cells, double points) { cells.RowHeight(points); }});
}

void cLongToggle::ApplyAsColWidth(const core::SharedState& shared, const Range& range, std::int32_t position) {
    step(shared.trace, range, position,
         {.read = [](const Range& cell) { return to_double(cell.ColumnWidth()); },
          .write = [](const Range& cells, double characters) { cells.ColumnWidth(characters); }});
}

void cLongToggle::ApplyAsColors(const core::SharedState& shared, const Range& range, std::int32_t position) {
    const automation::ResumeNext attempt(shared.trace);
    step(shared.trace, range, position,
         {.read = [](const Range& cell) { return palette_color(cell); },
          .write =
              [&](const Range& cells, double color) {
                  attempt([&] { cells.Font().Color(to_integer(color)); });
                  attempt([&] { cells.Select(); });
              }});
}

}  // namespace kestrune::styles
