#include "host/objects/OutlineObject.h"

#include <vector>

#include "host/objects/Optional.h"
#include "host/objects/SheetObject.h"

namespace kestrune::host {
namespace {

constexpr std::int32_t most_levels = 8;

struct Line {
    std::int32_t position;
    std::int32_t level;  // as stored: 0 is ungrouped
};

// Whether the line at an index has the group next to it, before or behind, folded away by showing `levels`.
template <class Lines>
bool folds(const Lines& lines, std::size_t index, bool summary_behind, std::int32_t levels) {
    const std::int32_t step = summary_behind ? -1 : 1;
    const bool exists = summary_behind ? index > 0 : index + 1 < lines.size();
    if (!exists) return false;
    const auto& beside = lines[index + static_cast<std::size_t>(step)];
    return beside.position == lines[index].position + step && beside.level > lines[index].level &&
           beside.level >= levels;
}

void show_row_levels(Sheet& sheet, std::int32_t levels) {
    // Every grouped row and the rows beside them, one of which carries the mark of a folded group.
    std::vector<Line> lines;
    const auto add = [&](std::int32_t row) {
        if (row < 1 || row > formula::max_rows || (!lines.empty() && lines.back().position >= row)) return;
        const RowFormat* format = sheet.row_format(row);
        lines.push_back({row, format ? format->outline_level : 0});
    };
    for (const auto& [row, format] : sheet.row_formats()) {
        if (format.outline_level == 0) continue;
        add(row - 1);
        add(row);
        add(row + 1);
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool collapsed = folds(lines, i, sheet.defaults().summary_below, levels);
        const bool grouped = lines[i].level > 0;
        const bool hidden = lines[i].level >= levels;
        const RowFormat* format = sheet.row_format(lines[i].position);
        if ((!grouped || (format && format->hidden == hidden)) && (format ? format->collapsed : false) == collapsed) {
            continue;
        }
        sheet.change_rows(lines[i].position, lines[i].position, [&](RowFormat& row) {
            if (grouped) row.hidden = hidden;
            row.collapsed = collapsed;
        });
    }
}

void show_column_levels(Sheet& sheet, std::int32_t levels) {
    std::vector<Line> lines;
    for (std::int32_t column = 1; column <= formula::max_columns; ++column) {
        lines.push_back({column, sheet.columns().at(column).outline_level});
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool collapsed = folds(lines, i, sheet.defaults().summary_right, levels);
        const bool grouped = lines[i].level > 0;
        if (!grouped && collapsed == sheet.columns().at(lines[i].position).collapsed) continue;
        sheet.columns().change(lines[i].position, lines[i].position, [&](ColumnRun& run) {
            if (grouped) run.hidden = lines[i].level >= levels;
            run.collapsed = collapsed;
        });
    }
}

}  // namespace

ObjectRef OutlineObject::parent() const { return sheet_object(session(), sheet_); }

std::int32_t OutlineObject::summary_row() const {
    return sheet_.defaults().summary_below ? xlSummaryBelow : xlSummaryAbove;
}

void OutlineObject::set_summary_row(std::int32_t place) {
    if (place != xlSummaryAbove && place != xlSummaryBelow) refuse("Outline.SummaryRow", "there is no such place");
    sheet_.ensure_loaded();
    sheet_.defaults().summary_below = place == xlSummaryBelow;
    sheet_.defaults().changed = true;
    session().changed(sheet_.workbook());
}

std::int32_t OutlineObject::summary_column() const { return sheet_.defaults().summary_right ? xlRight : xlLeft; }

void OutlineObject::set_summary_column(std::int32_t place) {
    if (place != xlLeft && place != xlRight) refuse("Outline.SummaryColumn", "there is no such place");
    sheet_.ensure_loaded();
    sheet_.defaults().summary_right = place == xlRight;
    sheet_.defaults().changed = true;
    session().changed(sheet_.workbook());
}

void OutlineObject::show_levels(const Value& row_levels, const Value& column_levels) {
    const std::int32_t rows = value_or(row_levels, 0);
    const std::int32_t columns = value_or(column_levels, 0);
    if (rows < 0 || rows > most_levels || columns < 0 || columns > most_levels) {
        refuse("Outline.ShowLevels", "an outline has 1 to 8 levels");
    }
    if (sheet_.protection().on) refuse("Outline.ShowLevels", "the sheet is protected");
    sheet_.ensure_loaded();
    if (rows > 0) show_row_levels(sheet_, rows);
    if (columns > 0) show_column_levels(sheet_, columns);
    session().changed(sheet_.workbook());
}

const MemberTable& OutlineObject::members() {
    using O = OutlineObject;
    static constexpr auto rows =
        automation::member_rows(read_only<&O::application>("Application", 1), read_only<&O::parent>("Parent", 2),
                                property<&O::summary_row, &O::set_summary_row>("SummaryRow", 3),
                                property<&O::summary_column, &O::set_summary_column>("SummaryColumn", 4),
                                method<&O::show_levels>("ShowLevels", 5, "[RowLevels], [ColumnLevels]"));
    static constexpr MemberTable table("Outline", rows);
    return table;
}

}  // namespace kestrune::host
