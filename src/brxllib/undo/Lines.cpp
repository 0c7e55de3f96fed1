#include "brxllib/undo/Lines.h"

#include <algorithm>

#include "automation/AutomationError.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib::undo {

using formula::Area;

std::vector<Area> lines_of(const excel::Range& lines) {
    std::vector<Area> found;
    const excel::Areas areas = lines.Areas();
    for (std::int32_t i = 1; i <= areas.Count(); ++i) {
        const excel::Range area = areas.Item(i);
        const std::int32_t row = area.Row();
        const std::int32_t column = area.Column();
        found.push_back({row, column, row + area.Rows().Count() - 1, column + area.Columns().Count() - 1});
    }
    std::ranges::sort(found, {}, [](const Area& area) { return area.top_left(); });
    return found;
}

excel::Range held_lines(const excel::Worksheet& sheet, const std::vector<Area>& lines, bool rows) {
    std::string address;
    for (Area area : lines) {
        if (rows)
            area = {area.first_row, 1, area.last_row, formula::max_columns};
        else
            area = {1, area.first_column, formula::max_rows, area.last_column};
        if (!address.empty()) address += ',';
        address += formula::area_text(area);
    }
    return sheet.Range(address);
}

std::optional<Obstacle> obstacle_of_sheet(const excel::Range& place) {
    try {
        const excel::Worksheet sheet = place.Worksheet();
        const std::string name = sheet.Name();
        (void)place.Row();
        if (sheet.ProtectContents() && !sheet.ProtectionMode())
            return Obstacle{"the worksheet " + formula::quoted_sheet(name) + " is protected", false};
        return {};
    } catch (const automation::AutomationError&) {
        return Obstacle{"its worksheet, or its rows or columns, are no longer there", true};
    }
}

std::string lines_moved(const excel::Range& place) {
    return "rows or columns have been inserted or deleted on " + formula::quoted_sheet(place.Worksheet().Name());
}

}  // namespace kestrune::brxllib::undo
