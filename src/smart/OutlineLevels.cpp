#include "smart/OutlineLevels.h"

#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "excel/Outline.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using excel::Range;
using excel::Value;

constexpr std::int32_t all_levels = 8;
constexpr std::int32_t first_level = 1;

// A run of whole rows or whole columns of a sheet.
struct Lines {
    excel::Worksheet sheet;
    bool rows;
    std::int32_t first;
    std::int32_t last;

    [[nodiscard]] Range range() const {
        const Range from = rows ? sheet.Cells().Item(first, 1) : sheet.Cells().Item(1, first);
        const std::int32_t count = last - first + 1;
        return rows ? from.Resize(count, 1).EntireRow() : from.Resize(1, count).EntireColumn();
    }
    [[nodiscard]] std::int32_t middle() const { return first + (last - first) / 2; }
    [[nodiscard]] Lines before() const { return {sheet, rows, first, middle()}; }
    [[nodiscard]] Lines after() const { return {sheet, rows, middle() + 1, last}; }
};

// Lines that differ are parted until they are alike, so that a long run costs few calls.
bool hides_group(const Lines& lines) {
    const Range range = lines.range();
    const Value hidden = range.Hidden();
    if (hidden == Value(false)) return false;
    const Value level = range.OutlineLevel();
    if (level == Value(1)) return false;
    if (!hidden.is(Value::Kind::Null) && !level.is(Value::Kind::Null)) return true;
    return lines.first < lines.last && (hides_group(lines.before()) || hides_group(lines.after()));
}

void show_hidden(const Lines& lines) {
    const Range range = lines.range();
    const Value hidden = range.Hidden();
    if (hidden == Value(true)) {
        range.Hidden(false);
    } else if (hidden.is(Value::Kind::Null) && lines.first < lines.last) {
        show_hidden(lines.before());
        show_hidden(lines.after());
    }
}

// The rows or columns that a range of one area runs through.
Lines lines_of(const excel::Worksheet& sheet, const Range& area, bool rows) {
    const std::int32_t first = rows ? area.Row() : area.Column();
    return {sheet, rows, first, first + (rows ? area.Rows() : area.Columns()).Count() - 1};
}

void show_selected(const excel::Worksheet& sheet, const Range& selection, bool rows) {
    const Lines all = lines_of(sheet, sheet.Cells(), rows);
    for (std::int32_t i = 1; i <= selection.Areas().Count(); ++i) {
        const Lines lines = lines_of(sheet, selection.Areas().Item(i), rows);
        if (lines.last - lines.first < all.last - all.first) show_hidden(lines);
    }
}

}  // namespace

void toggle_outline_levels(core::SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    automation::ObjectRef selected;
    attempt.assign(selected, [&] { return excel::Application(shared.application).Selection(); });
    if (!Range::is(selected)) return;
    const Range selection(selected);
    excel::Worksheet sheet;
    attempt([&] { sheet = selection.Worksheet(); });
    if (!sheet) return;

    bool folded = false;
    attempt.assign(folded, [&] {
        const Range used = sheet.UsedRange();
        return hides_group(lines_of(sheet, used, true)) || hides_group(lines_of(sheet, used, false));
    });
    const std::int32_t levels = folded ? all_levels : first_level;
    attempt([&] { sheet.Outline().ShowRowLevels(levels); });
    attempt([&] { show_selected(sheet, selection, true); });
    attempt([&] { sheet.Outline().ShowColumnLevels(levels); });
    attempt([&] { show_selected(sheet, selection, false); });
}

}  // namespace kestrune::smart
