#include <set>

#include "formula/FormulaCheck.h"
#include "host/objects/ArrayFormulas.h"
#include "host/objects/CellReader.h"
#include "host/objects/ContentWriter.h"
#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"

namespace kestrune::host {
namespace {

using automation::Array;

// Blocks beyond this do not fit an array that anybody could use.
constexpr std::int64_t largest_block = 32'000'000;

Array block_of(std::string_view member, const Area& area, const Value& blank) {
    if (area.cells() > largest_block) refuse(member, "the range has too many cells for one array");
    Array block(Array::Bound{1, area.rows()}, Array::Bound{1, area.columns()});
    if (!blank.is(Value::Kind::Empty)) std::ranges::fill(block.elements(), blank);
    return block;
}

// Reads one cell as a value, several as an array. read(position, cell) sees stored cells only; the others are blank.
template <class Read>
Value read_block(std::string_view member, const CellRange& cells, const Value& blank, Read&& read) {
    const Area& area = cells.first();
    if (area.single_cell()) {
        const Cell* cell = cells.sheet().find(area.top_left());
        return cell ? Value(read(area.top_left(), *cell)) : blank;
    }
    Array block = block_of(member, area, blank);
    cells.sheet().visit_cells(area, false, [&](Position at, const Cell& cell) {
        block.at(at.row - area.first_row + 1, at.column - area.first_column + 1) = read(at, cell);
    });
    return block;
}

Value read_values(std::string_view member, const CellRange& cells, CellReader::Dates dates) {
    CellReader reader(cells);
    return read_block(member, cells, {}, [&](Position, const Cell& cell) { return reader.value(cell, dates); });
}

// The cells of an array formula all show it, though one of them stores it.
void overlay_arrays(const CellRange& cells, formula::Notation notation, Value& formulas) {
    Sheet& sheet = cells.sheet();
    const Area& area = cells.first();
    if (area.single_cell() && !sheet.formula_record(area.top_left())) return;
    for (const Formula& array : arrays_in(sheet, area)) {
        if (array.kind != Formula::Kind::Array) continue;
        CellReader reader(cells);
        const Cell& anchor = *sheet.find(array.anchor);
        const std::string text = notation == formula::Notation::a1 ? reader.formula(array.anchor, anchor)
                                                                   : reader.formula_r1c1(array.anchor, anchor);
        if (area.single_cell()) {
            formulas = text;
            return;
        }
        const auto common = area.intersection(array.reach);
        Array block = *formulas.array();
        for (std::int32_t row = common->first_row; row <= common->last_row; ++row) {
            for (std::int32_t column = common->first_column; column <= common->last_column; ++column) {
                block.at(row - area.first_row + 1, column - area.first_column + 1) = text;
            }
        }
        formulas = std::move(block);
    }
}

}  // namespace

Value RangeObject::value(const Value&) const { return read_values("Range.Value", cells_, CellReader::Dates::AsDates); }

void RangeObject::set_value(const Value&, const Value& value) {
    if (value.is(Value::Kind::Object)) {
        // Without Set, Visual Basic means the value of the object.
        return set_value(Missing{}, range_argument("Range.Value", value)->value(Missing{}));
    }
    ContentWriter("Range.Value", cells_, formula::Notation::a1).write(value);
}

Value RangeObject::value2() const { return read_values("Range.Value2", cells_, CellReader::Dates::AsNumbers); }

void RangeObject::set_value2(const Value& value) {
    if (value.is(Value::Kind::Object)) {
        return set_value2(range_argument("Range.Value2", value)->value2());
    }
    ContentWriter("Range.Value2", cells_, formula::Notation::a1).write(value);
}

Value RangeObject::formula() const {
    CellReader reader(cells_);
    Value formulas = read_block("Range.Formula", cells_, "",
                                [&](Position at, const Cell& cell) { return reader.formula(at, cell); });
    overlay_arrays(cells_, formula::Notation::a1, formulas);
    return formulas;
}

void RangeObject::set_formula(const Value& formula) {
    ContentWriter("Range.Formula", cells_, formula::Notation::a1).write(formula);
}

Value RangeObject::formula_r1c1() const {
    CellReader reader(cells_);
    Value formulas = read_block("Range.FormulaR1C1", cells_, "",
                                [&](Position at, const Cell& cell) { return reader.formula_r1c1(at, cell); });
    overlay_arrays(cells_, formula::Notation::r1c1, formulas);
    return formulas;
}

void RangeObject::set_formula_r1c1(const Value& formula) {
    ContentWriter("Range.FormulaR1C1", cells_, formula::Notation::r1c1).write(formula);
}

Value RangeObject::has_formula() const {
    Sheet& sheet = cells_.sheet();
    std::int64_t cells = 0;
    std::int64_t formulas = 0;
    for (const Area& area : cells_.areas()) {
        cells += area.cells();
        if (area.single_cell()) {
            formulas += sheet.formula_record(area.top_left()) != nullptr;
            continue;
        }
        sheet.visit_cells(area, false, [&](Position, const Cell& cell) { formulas += cell.formula != 0; });
        for (const Formula& array : arrays_in(sheet, area)) {
            const Area covered = *area.intersection(array.reach);
            // One of the array's cells may have been counted already.
            formulas += covered.cells() - (covered.contains(array.anchor) ? 1 : 0);
        }
    }
    if (formulas != 0 && formulas != cells) return Null{};
    return formulas != 0;
}

Value RangeObject::has_array() const {
    std::int64_t cells = 0;
    std::int64_t covered = 0;
    for (const Area& area : cells_.areas()) {
        cells += area.cells();
        for (const Formula& array : arrays_in(cells_.sheet(), area)) {
            if (array.kind == Formula::Kind::Array) covered += area.intersection(array.reach)->cells();
        }
    }
    if (covered != 0 && covered != cells) return Null{};
    return covered != 0;
}

Value RangeObject::formula_array() const {
    Value formulas = formula();
    const Array* block = formulas.array();
    if (!block) return formulas;
    // Several cells have one array formula only when it is the same in all of them.
    for (const Value& text : block->elements()) {
        if (!(text == block->elements().front())) return Null{};
    }
    return block->elements().front();
}

void RangeObject::set_formula_array(const std::string& formula) {
    constexpr std::string_view member = "Range.FormulaArray";
    const bool r1c1 = formula::check_formula(formula).has_value() &&
                      !formula::check_formula(formula, formula::Notation::r1c1).has_value();
    ContentWriter(member, cells_, r1c1 ? formula::Notation::r1c1 : formula::Notation::a1).write_array_formula(formula);
}

ObjectRef RangeObject::current_array() const {
    const Formula* array = cells_.sheet().formula_record(cells_.first().top_left());
    if (!array || array->kind != Formula::Kind::Array)
        refuse("Range.CurrentArray", "the cell is not part of an array formula");
    return make({array->reach});
}

Value RangeObject::text() const {
    CellReader reader(cells_);
    std::int64_t blanks = 0;
    std::set<std::string> texts;
    for (const Area& area : cells_.areas()) {
        blanks += area.cells();
        cells_.sheet().visit_cells(area, false, [&](Position, const Cell& cell) {
            --blanks;
            if (texts.size() < 2) texts.insert(reader.text(cell));
        });
    }
    if (blanks > 0) texts.insert("");
    if (texts.size() > 1) return Null{};
    return *texts.begin();
}

Value RangeObject::prefix_character() const {
    return read_format([](const CellFormat& format) { return format.quote_prefix ? "'" : ""; });
}

void RangeObject::clear_contents() {
    ContentWriter("Range.ClearContents", cells_, formula::Notation::a1).clear();
    cells_.content_changed();
}

void RangeObject::clear_formats() {
    cells_.restyle("Range.ClearFormats", [](StyleId) { return StyleId{0}; });
    for (const Area& area : cells_.areas()) {
        if (!cells_.sheet().protection().on) cells_.sheet().unmerge(area);
        cells_.sheet().delete_conditional_formats(area);
    }
}

void RangeObject::clear() {
    cells_.require_format_allowed("Range.Clear");
    ContentWriter("Range.Clear", cells_, formula::Notation::a1).clear();
    clear_formats();
    cells_.content_changed();
}

}  // namespace kestrune::host
