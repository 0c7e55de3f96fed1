#include "host/objects/RangeReference.h"

#include <algorithm>
#include <variant>

#include "formula/Selection.h"
#include "host/objects/DefinedNames.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

CellRange range_of_argument(std::string_view member, HostSession& session, Sheet& own, const Value& argument) {
    if (const auto* text = argument.if_is<std::string>()) {
        auto cells = cells_of_text(own.workbook(), own, *text);
        if (!cells) refuse(member, "'" + *text + "' is neither cells nor the name of cells");
        return {session, *cells->sheet, std::move(cells->areas)};
    }
    return range_argument(member, argument)->cell_range();
}

}  // namespace

CellRange range_anywhere(std::string_view member, HostSession& session, Sheet& own, const Value& cell1,
                         const Value& cell2) {
    CellRange first = range_of_argument(member, session, own, cell1);
    if (cell2.is(Value::Kind::Missing)) return first;
    const CellRange second = range_of_argument(member, session, own, cell2);
    if (&first.sheet() != &second.sheet()) refuse(member, "the two corners are on different sheets");
    Area all = first.first();
    const auto include = [&](const Area& area) {
        all = {std::min(all.first_row, area.first_row), std::min(all.first_column, area.first_column),
               std::max(all.last_row, area.last_row), std::max(all.last_column, area.last_column)};
    };
    for (const Area& area : first.areas()) include(area);
    for (const Area& area : second.areas()) include(area);
    return {session, first.sheet(), {all}};
}

CellRange range_of_arguments(std::string_view member, HostSession& session, Sheet& own, const Value& cell1,
                             const Value& cell2) {
    CellRange range = range_anywhere(member, session, own, cell1, cell2);
    if (&range.sheet() != &own) refuse(member, "the cells are not on the sheet '" + own.name() + "'");
    return range;
}

bool names_addresses_only(std::string_view text) {
    const auto parsed = formula::parse_selection(text);
    const auto* selection = std::get_if<formula::Selection>(&parsed);
    return selection && !selection->sheet;
}

}  // namespace kestrune::host
