#include <algorithm>
#include <functional>
#include <utility>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "brxllib/DependentFormula.h"
#include "brxllib/Links.h"
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

Area area_of(const excel::Range& range) {
    const std::int32_t row = range.Row();
    const std::int32_t column = range.Column();
    return {row, column, row + range.Rows().Count() - 1, column + range.Columns().Count() - 1};
}

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

class Search {
  public:
    explicit Search(const SearchedCells& cells) : cells_(cells) {}

    void look_through(OpenBook& book, const std::string& sheet_name) {
        const excel::Worksheet sheet = book.workbook().Worksheets().Item(sheet_name);
        const excel::Range used = sheet.UsedRange();
        if (!has_formulas(used)) return;
        const Area all = area_of(used);
        DependentFormula formulas(cells_, book, sheet_name);
        const std::int32_t rows = std::max(1, cells_at_a_time / all.columns());
        for (std::int32_t row = all.first_row; row <= all.last_row; row += rows) {
            const Area block{row, all.first_column, std::min(row + rows - 1, all.last_row), all.last_column};
            look_through(sheet.Range(formula::area_text(block)), block, formulas, book, sheet_name);
        }
    }

    std::vector<Link> links() && { return std::move(links_); }

  private:
    void look_through(const excel::Range& range, const Area& block, DependentFormula& formulas, const OpenBook& book,
                      const std::string& sheet_name) {
        const Value texts = range.Formula();
        Value values;
        const auto columns = static_cast<std::size_t>(block.columns());
        for (std::size_t i = 0; i < static_cast<std::size_t>(block.cells()); ++i) {
            const auto* text = element(texts, i).if_is<std::string>();
            if (!text || !text->starts_with('=')) continue;
            const Position at{block.first_row + static_cast<std::int32_t>(i / columns),
                              block.first_column + static_cast<std::int32_t>(i % columns)};
            const auto use = formulas.find(*text, at);
            if (!use) continue;
            if (values.is(Value::Kind::Empty)) values = range.Value2();
            if (!is_constant(element(values, i), *text)) add(*use, *text, at, book, sheet_name);
        }
    }

    void add(const Use& use, const std::string& formula, Position at, const OpenBook& book, const std::string& sheet) {
        Link link;
        link.text = formula.substr(use.offset, use.length);
        link.workbook = book.name();
        link.folder = book.folder();
        link.sheet = sheet;
        link.address = formula::cell_text(at, {true, true});
        link.through = use.through;
        link.position = utf16_length(std::string_view(formula).substr(0, use.offset)) + 1;
        link.length = utf16_length(link.text);
        link.formula = formula;
        links_.push_back(std::move(link));
    }

    const SearchedCells& cells_;
    std::vector<Link> links_;
};

// Where the spilled range that a cell belongs to begins.
std::optional<Position> spill_anchor(const excel::Range& cell) {
    std::optional<Position> anchor;
    const automation::Trace nobody;  // versions without dynamic arrays have no such member
    automation::ResumeNext{nobody}([&] {
        const excel::Range parent = cell.SpillParent();
        if (parent) anchor = Position{parent.Row(), parent.Column()};
    });
    return anchor;
}

}  // namespace

std::vector<Link> dependents(const excel::Application& application, const excel::Range& range) {
    const excel::Worksheet sheet = range.Worksheet();
    OpenBooks books(application);
    SearchedCells cells{books, books.find(sheet.Parent().Name()), sheet.Name(), area_of(range), {}};
    if (!cells.book) return {};
    cells.spill_anchor = spill_anchor(range.Cells(1, 1));
    Search search(cells);
    search.look_through(*cells.book, cells.sheet);
    for (const std::string& other : cells.book->sheets()) {
        if (!automation::same_text(other, cells.sheet)) search.look_through(*cells.book, other);
    }
    for (OpenBook& book : books.all()) {
        if (&book == cells.book) continue;
        for (const std::string& other : book.sheets()) search.look_through(book, other);
    }
    return std::move(search).links();
}

}  // namespace kestrune::brxllib
