#include "brxllib/TextParts.h"

#include <algorithm>
#include <cstdint>
#include <span>

#include "automation/Conversion.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/autocolor/Parting.h"
#include "brxllib/autocolor/Rectangles.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;
using formula::Area;

// What a cell is to the text.
enum Mark : std::uint8_t { other, holding, covered };

Area in_use(const excel::Worksheet& sheet, Area area) {
    if (!area.whole_columns() && !area.whole_rows()) return area;
    const Area used = areas_of(sheet.UsedRange()).front();
    if (area.whole_columns()) area.last_row = used.last_row;
    if (area.whole_rows()) area.last_column = used.last_column;
    return area;
}

std::vector<std::uint8_t> marks_of(const excel::Range& range, std::string_view text) {
    const Value formulas = range.Formula();
    std::vector<std::uint8_t> marks;
    const auto mark = [&](const Value& formula) {
        marks.push_back(formula.is(Value::Kind::String) && automation::to_text(formula) == text ? holding : other);
    };
    if (const automation::Array* array = formulas.array()) {
        marks.reserve(array->elements().size());
        for (const Value& formula : array->elements()) mark(formula);
    } else {
        mark(formulas);
    }
    return marks;
}

// Marks what merged areas cover: all of an area but its first cell.
void mark_covered(const excel::Worksheet& sheet, const Area& area, std::vector<std::uint8_t>& marks) {
    const auto place = [&](std::int32_t row, std::int32_t column) -> std::uint8_t& {
        return marks[static_cast<std::size_t>(row - area.first_row) * static_cast<std::size_t>(area.columns()) +
                     static_cast<std::size_t>(column - area.first_column)];
    };
    std::vector<Area> merges;
    const auto range = [&](const Area& part) { return sheet.Range(formula::area_text(part)); };
    visit_uniform_parts(
        area, [&](const Area& part) { return range(part).MergeCells(); },
        [&](const Area& part, const Value& merged) {
            if (merged != Value(true)) return;
            for (std::int32_t row = part.first_row; row <= part.last_row; ++row) {
                for (std::int32_t column = part.first_column; column <= part.last_column; ++column) {
                    const formula::Position at{row, column};
                    auto known = std::ranges::find_if(merges, [&](const Area& merge) { return merge.contains(at); });
                    if (known == merges.end()) {
                        known = merges.insert(known, areas_of(range(Area::cell(at)).MergeArea()).front());
                    }
                    if (known->top_left() != at) place(row, column) = covered;
                }
            }
        });
}

}  // namespace

std::vector<TextPart> text_parts(const excel::Range& rectangle, std::string_view text) {
    const excel::Worksheet sheet = rectangle.Worksheet();
    const Area area = in_use(sheet, areas_of(rectangle).front());
    const excel::Range range = sheet.Range(formula::area_text(area));
    std::vector<std::uint8_t> marks = marks_of(range, text);
    if (range.MergeCells() != Value(false)) mark_covered(sheet, area, marks);

    std::vector<TextPart> parts;
    const auto add = [&](const Area& block, std::span<const std::uint8_t> cells) {
        for (const bool holds : {false, true}) {
            const std::vector<Area> found = rectangles(block, cells, holds ? holding : other);
            for (std::span<const Area> left = found; !left.empty();) {
                AddressText address = address_of(left);
                left = left.subspan(address.areas);
                parts.push_back({std::move(address.text), holds});
            }
        }
    };
    const bool alike = std::ranges::all_of(marks, [&](std::uint8_t mark) { return mark == marks.front(); });
    if (alike) {
        add(area, marks);
        return parts;
    }
    // A row's last cell that counts may stand in any column, so cells go column by column from the left; neighbouring
    // columns that are alike go together.
    const auto column = [&](std::int32_t at) {
        std::vector<std::uint8_t> cells;
        for (auto i = static_cast<std::size_t>(at - area.first_column); i < marks.size();
             i += static_cast<std::size_t>(area.columns())) {
            cells.push_back(marks[i]);
        }
        return cells;
    };
    for (std::int32_t first = area.first_column; first <= area.last_column;) {
        const std::vector<std::uint8_t> cells = column(first);
        std::int32_t last = first;
        while (last < area.last_column && column(last + 1) == cells) ++last;
        Area strip = area;
        strip.first_column = first;
        strip.last_column = first;
        std::vector<std::uint8_t> block;
        for (const std::uint8_t mark : cells)
            block.insert(block.end(), static_cast<std::size_t>(last - first + 1), mark);
        strip.last_column = last;
        add(strip, block);
        first = last + 1;
    }
    return parts;
}

}  // namespace kestrune::brxllib
