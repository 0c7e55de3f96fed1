#include "host/objects/keys/Fill.h"

#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"
#include "host/objects/keys/Pointer.h"

namespace kestrune::host {
namespace {

struct Parts {
    Area source;
    Area target;
};

Parts parts_of(Area area, bool down) {
    constexpr std::string_view member = "Range.Fill";
    Area source = area;
    if (down) {
        if (area.first_row == 1 && area.rows() == 1) refuse(member, "there is no row above to fill from");
        if (area.rows() == 1) --area.first_row;
        source = {area.first_row, area.first_column, area.first_row, area.last_column};
        return {source, {area.first_row + 1, area.first_column, area.last_row, area.last_column}};
    }
    if (area.first_column == 1 && area.columns() == 1) refuse(member, "there is no column at the left to fill from");
    if (area.columns() == 1) --area.first_column;
    source = {area.first_row, area.first_column, area.last_row, area.first_column};
    return {source, {area.first_row, area.first_column + 1, area.last_row, area.last_column}};
}

void fill_line(HostSession& session, Sheet& sheet, Position from, const Area& target) {
    const CellRange cells(session, sheet, {target});
    if (!sheet.formula_at(from).empty()) {
        const Value formula = RangeObject(CellRange(session, sheet, {Area::cell(from)})).formula_r1c1();
        RangeObject(cells).set_formula_r1c1(formula);
    } else if (const CellContent content = sheet.content_at(from); content.kind == CellKind::Blank) {
        sheet.clear_content(target);
    } else {
        sheet.require_whole_arrays(target);
        for (std::int32_t row = target.first_row; row <= target.last_row; ++row) {
            for (std::int32_t column = target.first_column; column <= target.last_column; ++column) {
                sheet.set_content({row, column}, content);
            }
        }
    }
    const StyleId style = sheet.style_at(from);
    sheet.restyle(target, [style](StyleId) { return style; });
}

}  // namespace

void fill_selection(HostSession& session, bool down) {
    Sheet& sheet = Pointer(session).sheet();
    std::vector<Parts> all;
    std::vector<Area> targets;
    for (const Area& area : sheet.view().selection) {
        // Beyond the cells in use there is nothing to copy from.
        Area inside = area;
        const Area used = sheet.used_area();
        if (down)
            inside.last_column = std::max(inside.first_column, std::min(inside.last_column, used.last_column));
        else
            inside.last_row = std::max(inside.first_row, std::min(inside.last_row, used.last_row));
        all.push_back(parts_of(inside, down));
        targets.push_back(all.back().target);
    }
    const CellRange changed(session, sheet, targets);
    changed.require_content_allowed("Range.Fill");
    for (const auto& [source, target] : all) {
        for (std::int32_t row = source.first_row; row <= source.last_row; ++row) {
            for (std::int32_t column = source.first_column; column <= source.last_column; ++column) {
                Area line = target;
                if (down)
                    line.first_column = line.last_column = column;
                else
                    line.first_row = line.last_row = row;
                fill_line(session, sheet, {row, column}, line);
            }
        }
    }
    changed.content_changed();
}

}  // namespace kestrune::host
