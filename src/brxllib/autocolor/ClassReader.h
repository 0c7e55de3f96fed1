#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "automation/ResumeNext.h"
#include "brxllib/autocolor/CellClass.h"
#include "excel/Application.h"
#include "excel/Worksheet.h"
#include "formula/Area.h"

namespace kestrune::brxllib {

// What the cells of a rectangle hold, row by row.
struct ClassBlock {
    formula::Area area;
    std::vector<CellClass> cells;

    // Where a cell of the area stands in the list.
    [[nodiscard]] std::ptrdiff_t place_of(formula::Position at) const {
        return static_cast<std::ptrdiff_t>(at.row - area.first_row) * area.columns() + (at.column - area.first_column);
    }
};

// Tells what the cells of one sheet hold, reading whole blocks from Excel.
class ClassReader {
  public:
    // hyperlinks: whether links to click are a class of their own. The trace outlives the reader.
    ClassReader(const excel::Worksheet& sheet, bool hyperlinks, const automation::Trace& trace)
        : names_(sheet, sheet.Name()), attempt_(trace), hyperlinks_(hyperlinks) {}

    // range: the cells of the area, which fit an array. Fails when Excel refuses to be read.
    [[nodiscard]] ClassBlock read(const excel::Range& range, const formula::Area& area);

  private:
    void mark_links(const excel::Range& range, ClassBlock& block) const;

    NameMeanings names_;
    automation::ResumeNext attempt_;
    bool hyperlinks_;
};

// The rectangles of a range, in its order. Excel cuts the address of a range of many areas off, so a long one is read
// area by area.
[[nodiscard]] std::vector<formula::Area> areas_of(const excel::Range& range);
// The range of many areas, whose address may be longer than Excel takes; nothing of none.
[[nodiscard]] excel::Range range_of(const excel::Application& application, const excel::Worksheet& sheet,
                                    std::span<const formula::Area> areas);

}  // namespace kestrune::brxllib
