#include "brxllib/FormulaScan.h"

#include <algorithm>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "brxllib/Utf16.h"
#include "excel/Worksheet.h"
#include "formula/A1.h"

namespace kestrune::brxllib {
namespace {

using automation::Value;
using formula::Area;
using formula::Position;

// So many cells are read at a time: few calls to Excel, and arrays of a bounded size.
constexpr std::int32_t cells_at_a_time = 200'000;

// Whether a sheet has formulas at all.
bool has_formulas(const excel::Range& used) {
    const Value answer = used.HasFormula();
    return !answer.is(Value::Kind::Boolean) || automation::to_boolean(answer);
}

// The element of a block that Excel gave for a range; a single cell's block is the value itself.
const Value& element(const Value& block, std::size_t index) {
    const automation::Array* array = block.array();
    return array ? array->elements()[index] : block;
}

// A text that merely begins like a formula reads as itself.
bool is_constant(const Value& value, std::string_view formula) {
    const auto* text = value.if_is<std::string>();
    return text && *text == formula;
}

void scan_block(const excel::Range& range, const Area& block, const std::function<void(const ScannedFormula&)>& visit) {
    const Value texts = range.Formula();
    Value values;
    std::size_t i = 0;
    const std::function<bool()> is_formula = [&] {
        if (values.is(Value::Kind::Empty)) values = range.Value2();
        return !is_constant(element(values, i), *element(texts, i).if_is<std::string>());
    };
    const auto columns = static_cast<std::size_t>(block.columns());
    for (; i < static_cast<std::size_t>(block.cells()); ++i) {
        const auto* text = element(texts, i).if_is<std::string>();
        if (!text || !text->starts_with('=')) continue;
        const Position at{block.first_row + static_cast<std::int32_t>(i / columns),
                          block.first_column + static_cast<std::int32_t>(i % columns)};
        visit({*text, at, is_formula});
    }
}

}  // namespace

Area area_of(const excel::Range& range) {
    const std::int32_t row = range.Row();
    const std::int32_t column = range.Column();
    return {row, column, row + range.Rows().Count() - 1, column + range.Columns().Count() - 1};
}

void scan_formulas(const excel::Worksheet& sheet, const std::function<void(const ScannedFormula&)>& visit) {
    const excel::Range used = sheet.UsedRange();
    if (!has_formulas(used)) return;
    const Area all = area_of(used);
    const std::int32_t rows = std::max(1, cells_at_a_time / all.columns());
    for (std::int32_t row = all.first_row; row <= all.last_row; row += rows) {
        const Area block{row, all.first_column, std::min(row + rows - 1, all.last_row), all.last_column};
        scan_block(sheet.Range(formula::area_text(block)), block, visit);
    }
}

std::optional<Position> spill_anchor(const excel::Range& cell) {
    std::optional<Position> anchor;
    const automation::Trace nobody;  // versions without dynamic arrays have no such member
    automation::ResumeNext{nobody}([&] {
        const excel::Range parent = cell.SpillParent();
        if (parent) anchor = Position{parent.Row(), parent.Column()};
    });
    return anchor;
}

Link link_to_formula(const OpenBook& book, const std::string& sheet, Position at, const std::string& formula,
                     std::size_t offset, std::size_t length, std::string through) {
    Link link;
    link.text = formula.substr(offset, length);
    link.workbook = book.name();
    link.folder = book.folder();
    link.sheet = sheet;
    link.address = formula::cell_text(at, {true, true});
    link.through = std::move(through);
    link.position = utf16_length(std::string_view(formula).substr(0, offset)) + 1;
    link.length = utf16_length(link.text);
    link.formula = formula;
    return link;
}

}  // namespace kestrune::brxllib
