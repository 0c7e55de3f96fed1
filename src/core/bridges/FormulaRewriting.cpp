#include "core/bridges/FormulaRewriting.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "excel/Worksheet.h"

namespace kestrune::core {
namespace {

using automation::Array;
using automation::ResumeNext;
using automation::to_text;
using automation::Value;

// Formulas of a block of cells, each for its own.
class Block {
  public:
    Block(const SharedState& shared, const excel::Range& range, Array formulas)
        : attempt_(shared.trace), quietly_(nobody_), range_(range), formulas_(std::move(formulas)) {}

    void write() const { write({1, 1, formulas_.bound(0).count, formulas_.bound(1).count}); }

  private:
    struct Part {  // of the block, from 1
        std::int32_t row, column, rows, columns;
    };

    // Excel refuses an array for one bad formula in it: the halves show which.
    void write(const Part& part) const {
        const excel::Range cells = range_.Cells(part.row, part.column).Resize(part.rows, part.columns);
        if (part.rows == 1 && part.columns == 1) {
            attempt_([&] { cells.Formula(at(part.row, part.column)); });
            return;
        }
        if (quietly_([&] { cells.Formula(piece(part)); })) return;
        Part first = part;
        Part second = part;
        if (part.rows > 1) {
            first.rows /= 2;
            second.row += first.rows;
            second.rows -= first.rows;
        } else {
            first.columns /= 2;
            second.column += first.columns;
            second.columns -= first.columns;
        }
        write(first);
        write(second);
    }

    [[nodiscard]] const Value& at(std::int32_t row, std::int32_t column) const {
        return formulas_
            .elements()[static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(formulas_.bound(1).count) +
                        static_cast<std::size_t>(column - 1)];
    }

    [[nodiscard]] Array piece(const Part& part) const {
        Array cells(Array::Bound{1, part.rows}, Array::Bound{1, part.columns});
        auto element = cells.elements().begin();
        for (std::int32_t row = 0; row < part.rows; ++row) {
            for (std::int32_t column = 0; column < part.columns; ++column) {
                *element++ = at(part.row + row, part.column + column);
            }
        }
        return cells;
    }

    automation::Trace nobody_;
    ResumeNext attempt_;
    ResumeNext quietly_;
    const excel::Range& range_;
    Array formulas_;
};

void rewrite_block(const SharedState& shared, const excel::Range& range, const FormulaChange& change) {
    Value formulas = range.Formula();
    const Array* found = formulas.array();
    if (!found) {
        if (const auto changed = change(to_text(formulas))) range.Formula(*changed);
        return;
    }
    Array changed = *found;
    bool any = false;
    for (Value& formula : changed.elements()) {
        if (const auto text = change(to_text(formula))) {
            formula = *text;
            any = true;
        }
    }
    if (any && !range.Worksheet().ProtectContents()) Block(shared, range, std::move(changed)).write();
}

}  // namespace

void rewrite_formulas(const SharedState& shared, const excel::Range& range, const FormulaChange& change) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const excel::Worksheet sheet = range.Worksheet();
        for (const FormulaBlock& block : shared.spreadsheet().formula_blocks(range.object())) {
            attempt([&] {
                const excel::Range cells = sheet.Range(block.address);
                if (block.kind == FormulaBlock::Kind::Plain) return rewrite_block(shared, cells, change);
                const bool array = block.kind == FormulaBlock::Kind::Array;
                const auto changed = change(to_text(array ? cells.FormulaArray() : cells.Formula2()));
                if (!changed) return;
                if (array) {
                    cells.FormulaArray(*changed);
                } else {
                    cells.Formula2(*changed);
                }
            });
        }
    });
}

std::optional<std::string> find_formula(const SharedState& shared, const excel::Range& range,
                                        const std::function<bool(const std::string& formula)>& asked) {
    const excel::Worksheet sheet = range.Worksheet();
    for (const FormulaBlock& block : shared.spreadsheet().formula_blocks(range.object())) {
        const Value formulas = sheet.Range(block.address).Formula();
        const Array* array = formulas.array();
        if (!array) {
            if (std::string text = to_text(formulas); asked(text)) return text;
            continue;
        }
        for (const Value& formula : array->elements()) {
            if (std::string text = to_text(formula); asked(text)) return text;
        }
    }
    return std::nullopt;
}

}  // namespace kestrune::core
