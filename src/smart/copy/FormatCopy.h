#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "smart/CellGroups.h"
#include "smart/copy/Direction.h"

namespace kestrune::smart {

// A cell by its line (row, or column) and its place along the line, both from 1 on.
struct LinePlace {
    std::int32_t line;
    std::int32_t place;
};

// Gives cells the looks of the copied line's cell of the same place: fonts, number formats and horizontal alignments.
class FormatCopy {
  public:
    // places: the first and the last one that are copied. cells: by lines, then by places.
    FormatCopy(const core::SharedState& shared, const excel::Worksheet& sheet, const CopyDirection& direction,
               std::int32_t source_line, std::pair<std::int32_t, std::int32_t> places,
               const std::vector<LinePlace>& cells)
        : shared_(shared),
          sheet_(sheet),
          direction_(direction),
          source_line_(source_line),
          places_(places),
          cells_(cells) {}

    void copy_number_formats();
    void copy_all();

  private:
    void copy(const CellProperty& property, std::pair<std::int32_t, std::int32_t> places);
    const CellGroups& targets(std::pair<std::int32_t, std::int32_t> places);

    const core::SharedState& shared_;
    const excel::Worksheet& sheet_;
    const CopyDirection& direction_;
    std::int32_t source_line_;
    std::pair<std::int32_t, std::int32_t> places_;
    const std::vector<LinePlace>& cells_;
    std::map<std::pair<std::int32_t, std::int32_t>, CellGroups> targets_;  // by places
};

// The cells as rectangles of the sheet.
[[nodiscard]] std::vector<Rectangle> rectangles_of(const CopyDirection& direction, RectangleBuilder builder);

}  // namespace kestrune::smart
