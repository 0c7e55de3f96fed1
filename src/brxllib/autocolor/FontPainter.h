#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <utility>

#include "automation/ResumeNext.h"
#include "brxllib/autocolor/RespectedColors.h"
#include "excel/Worksheet.h"
#include "formula/Area.h"

namespace kestrune::brxllib {

// Gives cells of a sheet a font colour. Cells that have it, or one that clients want left alone, or characters in
// several colours, stay as they are. Cells are read and written in groups; a group is taken apart only where its cells
// differ.
class FontPainter {
  public:
    // respected and trace outlive the painter.
    FontPainter(excel::Worksheet sheet, RespectedColors& respected, const automation::Trace& trace)
        : sheet_(std::move(sheet)), respected_(respected), attempt_(trace) {}

    // color: BGR. before: the colour that all these cells have, where the caller knows it.
    void paint(std::span<const formula::Area> areas, std::int32_t color, std::optional<std::int32_t> before);

  private:
    using Areas = std::span<const formula::Area>;

    // Whether cells of a colour stay as they are.
    [[nodiscard]] bool keeps(std::int32_t before, std::int32_t color) const;
    // known: whether all these cells are known to change.
    void paint_group(Areas areas, std::int32_t color, bool known);
    void paint_parts(const formula::Area& area, std::int32_t color);

    excel::Worksheet sheet_;
    RespectedColors& respected_;
    automation::ResumeNext attempt_;
};

}  // namespace kestrune::brxllib
