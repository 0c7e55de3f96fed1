#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "formula/Shift.h"
#include "host/model/DataTableFormula.h"
#include "host/model/ModelError.h"
#include "host/model/Sheet.h"
#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

// Beyond this many forgotten results nobody waits for one of them.
constexpr std::size_t most_results = 200'000;

// A place, and the formula that stood there.
std::uint64_t key_of(Position at, std::string_view formula) {
    const auto place = static_cast<std::uint64_t>(at.row) << 32U | static_cast<std::uint32_t>(at.column);
    return place ^ (std::hash<std::string_view>{}(formula)*0x9E3779B97F4A7C15U);
}

// What a formula says in one of its cells.
std::string text_of(const Formula& formula, Position at) {
    switch (formula.kind) {
        case Formula::Kind::Shared:
            return formula::shift_formula(formula.text, at.row - formula.anchor.row, at.column - formula.anchor.column,
                                          formula::OffSheet::wrap);
        case Formula::Kind::DataTable:
            return data_table_text(formula.attributes);
        default:
            return formula.text;
    }
}

}  // namespace

CellContent CellContent::of(double number) {
    CellContent content;
    content.kind = CellKind::Number;
    content.number = number;
    return content;
}

CellContent CellContent::of(bool boolean) {
    CellContent content;
    content.kind = CellKind::Boolean;
    content.boolean = boolean;
    return content;
}

CellContent CellContent::of(CellError error) {
    CellContent content;
    content.kind = CellKind::Error;
    content.error = error;
    return content;
}

CellContent CellContent::of(std::string text) {
    CellContent content;
    content.kind = CellKind::String;
    content.text = std::move(text);
    return content;
}

CellContent Sheet::content_at(Position at) {
    const Cell* cell = find(at);
    if (!cell) return {};
    switch (cell->kind) {
        case CellKind::Number:
            return CellContent::of(cell->number);
        case CellKind::Boolean:
            return CellContent::of(cell->boolean);
        case CellKind::Error:
            return CellContent::of(cell->error);
        case CellKind::String:
            return CellContent::of(workbook_.strings[cell->string].text);
        case CellKind::Blank:
            break;
    }
    return {};
}

const Formula* Sheet::live_array_at(Position at) const {
    for (const std::uint32_t index : arrays_) {
        const Formula& array = formulas_[index];
        if (array.reach.contains(at) && array_is_live(index)) return &array;
    }
    return nullptr;
}

bool Sheet::array_is_live(std::uint32_t index) const {
    const Position anchor = formulas_[index].anchor;
    const CellColumn* column = column_if(anchor.column);
    const Cell* cell = column ? column->find(anchor.row) : nullptr;
    // What a dynamic array spills over is only shown there and gives way to what is entered.
    return cell && cell->formula == index + 1 && (cell->flags & Cell::has_metadata) == 0;
}

const Formula* Sheet::formula_record(Position at) {
    const Cell* cell = find(at);
    if (cell && cell->formula != 0) return &formulas_[cell->formula - 1];
    return live_array_at(at);
}

std::string Sheet::formula_at(Position at) {
    const Formula* formula = formula_record(at);
    return formula ? text_of(*formula, at) : std::string();
}

void Sheet::require_whole_arrays(const Area& area) {
    ensure_loaded();
    for (const std::uint32_t index : arrays_) {
        const Formula& array = formulas_[index];
        if (!array.reach.intersection(area) || area.contains(array.reach) || !array_is_live(index)) continue;
        throw ModelError(array.kind == Formula::Kind::DataTable ? "You cannot change part of a data table."
                                                                : "You cannot change part of an array.");
    }
}

void Sheet::value_changed() {
    cells_changed = true;
    workbook_.recalculate_on_load = true;
}

void Sheet::remember_result(const Cell& cell, Position at) {
    if (cell.kind == CellKind::Blank || results_.size() >= most_results) return;
    const bool in_array =
        std::ranges::any_of(arrays_, [&](std::uint32_t index) { return formulas_[index].reach.contains(at); });
    if (cell.formula == 0 && !in_array) return;
    const std::string formula = cell.formula == 0 ? std::string() : text_of(formulas_[cell.formula - 1], at);
    results_.insert_or_assign(key_of(at, formula), cell);
}

void Sheet::show_result_again(Position at) {
    Cell* cell = column_or_new(at.column).find(at.row);
    if (!cell) return;
    const std::string formula = cell->formula == 0 ? std::string() : text_of(formulas_[cell->formula - 1], at);
    const auto known = results_.find(key_of(at, formula));
    if (known == results_.end()) return;
    Cell shown = known->second;
    shown.style = cell->style;
    shown.formula = cell->formula;
    shown.source = cell->source;
    shown.flags = cell->flags;
    *cell = shown;
}

void Sheet::before_overwriting(const Cell& cell, Position at) {
    remember_result(cell, at);
    if (cell.formula == 0) return;
    const std::uint32_t number = cell.formula;
    const Formula& formula = formulas_[number - 1];
    if (formula.anchor != at || formula.kind == Formula::Kind::Normal || formula.reach.single_cell()) return;
    const bool spills = formula.kind == Formula::Kind::Array && (cell.flags & Cell::has_metadata) != 0;
    if (formula.kind != Formula::Kind::Shared && !spills) return;
    const Area reach = formula.reach;
    for (std::int32_t c = reach.first_column; c <= reach.last_column && c <= std::ssize(cells_); ++c) {
        CellColumn* column = column_if(c);
        if (!column) continue;
        for (auto member = column->from(reach.first_row);
             member != column->cells.end() && member->row <= reach.last_row; ++member) {
            if (Position{member->row, c} == at) continue;
            if (spills && member->formula == 0)
                make_blank(*member);  // what an array showed there goes with it
            else if (!spills && member->formula == number)
                member->flags |= Cell::content_changed;  // the text they lean on goes away: each writes its own
        }
    }
}

void Sheet::make_blank(Cell& cell) {
    if (cell.kind == CellKind::Blank && cell.formula == 0) return;
    cell.kind = CellKind::Blank;
    cell.number = 0;
    cell.formula = 0;
    cell.flags = static_cast<std::uint8_t>((cell.flags | Cell::content_changed) & ~Cell::has_metadata);
    value_changed();
}

bool Sheet::holds(const Cell& cell, const CellContent& content) {
    if (cell.formula != 0 || cell.kind != content.kind) return false;
    switch (content.kind) {
        case CellKind::Number:
            return cell.number == content.number;
        case CellKind::Boolean:
            return cell.boolean == content.boolean;
        case CellKind::Error:
            return cell.error == content.error;
        case CellKind::String: {
            const StringTable::Entry& entry = workbook_.strings[cell.string];
            return entry.rich.empty() && entry.text == content.text;
        }
        case CellKind::Blank:
            break;
    }
    return true;
}

Cell& Sheet::cell_for_content(Position at) {
    Cell& cell = column_or_new(at.column).at_or_new(at.row, inherited_style(at));
    before_overwriting(cell, at);
    make_blank(cell);
    cell.flags = static_cast<std::uint8_t>((cell.flags | Cell::content_changed) & ~Cell::has_metadata);
    value_changed();
    return cell;
}

void Sheet::set_content(Position at, const CellContent& content) {
    require_whole_arrays(Area::cell(at));
    const Cell* present = find(at);
    if (present ? holds(*present, content) : content.kind == CellKind::Blank) return;
    // The text goes in first: a table that cannot grow leaves the cell as it was.
    const std::uint32_t string = content.kind == CellKind::String ? workbook_.strings.intern(content.text) : 0;
    Cell& cell = cell_for_content(at);
    cell.kind = content.kind;
    switch (content.kind) {
        case CellKind::Number:
            cell.number = content.number;
            break;
        case CellKind::Boolean:
            cell.boolean = content.boolean;
            break;
        case CellKind::Error:
            cell.error = content.error;
            break;
        case CellKind::String:
            cell.string = string;
            break;
        case CellKind::Blank:
            break;
    }
}

void Sheet::set_formula(Position at, std::string text) {
    if (text.empty()) return set_content(at, CellContent::blank());
    require_whole_arrays(Area::cell(at));
    const Formula* present = formula_record(at);
    const bool plain = present && (present->kind == Formula::Kind::Normal || present->kind == Formula::Kind::Shared);
    if (plain && formula_at(at) == text) return;
    Formula formula;
    formula.text = std::move(text);
    formula.anchor = at;
    formula.reach = Area::cell(at);
    const std::uint32_t number = add_loaded_formula(std::move(formula));
    cell_for_content(at).formula = number;
    show_result_again(at);
}

void Sheet::set_array_formula(const Area& reach, std::string text) {
    clear_content(reach);
    if (text.empty()) return;
    Formula formula;
    formula.text = std::move(text);
    formula.kind = Formula::Kind::Array;
    formula.anchor = reach.top_left();
    formula.reach = reach;
    const bool comes_back = results_.contains(key_of(reach.top_left(), formula.text));
    const std::uint32_t number = add_loaded_formula(std::move(formula));
    cell_for_content(reach.top_left()).formula = number;
    if (!comes_back) return;
    for (std::int32_t column = reach.first_column; column <= reach.last_column; ++column)
        for (std::int32_t row = reach.first_row; row <= reach.last_row; ++row) show_result_again({row, column});
}

void Sheet::clear_content(const Area& area) {
    require_whole_arrays(area);
    const auto last_column = std::min(area.last_column, static_cast<std::int32_t>(cells_.size()));
    for (std::int32_t c = area.first_column; c <= last_column; ++c) {
        CellColumn* column = column_if(c);
        if (!column) continue;
        for (auto cell = column->from(area.first_row); cell != column->cells.end() && cell->row <= area.last_row;
             ++cell) {
            before_overwriting(*cell, {cell->row, c});
            make_blank(*cell);
        }
    }
}

}  // namespace kestrune::host
