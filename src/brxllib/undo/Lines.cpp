#include "brxllib/undo/Lines.h"

#include <algorithm>
#include <utility>

#include "automation/AutomationError.h"
#include "brxllib/autocolor/ClassReader.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib::undo {

using formula::Area;
using formula::Edit;

std::vector<Area> lines_of(const excel::Range& range, bool rows) {
    std::vector<Area> lines;
    for (const Area& area : areas_of(range)) {
        lines.push_back(rows ? Area{area.first_row, 1, area.last_row, formula::max_columns}
                             : Area{1, area.first_column, formula::max_rows, area.last_column});
    }
    std::ranges::sort(lines, {}, &Area::top_left);
    return lines;
}

std::vector<Area> joined(const std::vector<Area>& lines, bool rows) {
    std::vector<Area> whole;
    for (const Area& line : lines) {
        if (whole.empty() || first_of(line, rows) > last_of(whole.back(), rows) + 1) {
            whole.push_back(line);
            continue;
        }
        Area& last = whole.back();
        last.last_row = std::max(last.last_row, line.last_row);
        last.last_column = std::max(last.last_column, line.last_column);
    }
    return whole;
}

Area moved(Area line, std::int32_t by, bool rows) {
    (rows ? line.first_row : line.first_column) += by;
    (rows ? line.last_row : line.last_column) += by;
    return line;
}

std::int32_t count_of(const Area& line, bool rows) { return rows ? line.rows() : line.columns(); }
std::int32_t first_of(const Area& line, bool rows) { return rows ? line.first_row : line.first_column; }
std::int32_t last_of(const Area& line, bool rows) { return rows ? line.last_row : line.last_column; }

std::vector<Edit> edits_of(const std::vector<Area>& lines, bool rows, bool deletes, const std::string& sheet) {
    std::vector<Edit> edits;
    for (const Area& line : lines) {
        Edit edit;
        edit.kind = rows ? (deletes ? Edit::Kind::delete_rows : Edit::Kind::insert_rows)
                         : (deletes ? Edit::Kind::delete_columns : Edit::Kind::insert_columns);
        edit.sheet = sheet;
        edit.first = first_of(line, rows);
        edit.count = count_of(line, rows);
        edits.insert(deletes ? edits.begin() : edits.end(), std::move(edit));
    }
    return edits;
}

std::optional<Obstacle> obstacle_of_sheet(const excel::Worksheet& sheet) {
    try {
        const std::string name = sheet.Name();
        if (!sheet.ProtectContents() || sheet.ProtectionMode()) return {};
        return Obstacle{"the worksheet " + formula::quoted_sheet(name) + " is protected", false};
    } catch (const automation::AutomationError&) {
        return Obstacle{"its worksheet or workbook is no longer there", true};
    }
}

Obstacle lines_moved(const excel::Worksheet& sheet) {
    return {"rows or columns have been inserted or deleted on " + formula::quoted_sheet(sheet.Name()), true};
}

}  // namespace kestrune::brxllib::undo
