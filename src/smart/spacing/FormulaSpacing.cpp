#include "smart/spacing/FormulaSpacing.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "core/bridges/Selection.h"
#include "forms/MsgBox.h"
#include "settings/cUserSettings.h"
#include "smart/CellGroups.h"
#include "smart/spacing/fSmartFmlaSpacing.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using automation::Value;

// One selected rectangle. A line is what the formula is repeated along: a column of the row command.
class Block {
  public:
    Block(const core::SharedState& shared, const excel::Range& area, bool rows, std::int32_t group_size,
          std::int32_t adjustment)
        : shared_(shared),
          sheet_(area.Worksheet()),
          rows_(rows),
          group_size_(group_size),
          adjustment_(adjustment),
          top_(area.Row()),
          left_(area.Column()),
          height_(area.Rows().Count()),
          width_(area.Columns().Count()) {}

    void fill() const {
        const std::int32_t count = rows_ ? height_ : width_;
        if (count <= group_size_) return;
        // Lines beyond the used range have no first cell to speak of.
        const excel::Range heads(shared_.spreadsheet().in_use(
            sheet_.Range(address_of(rectangle(1, 1, 1, rows_ ? width_ : height_))).object()));
        if (!heads) return;
        const std::int32_t first = rows_ ? heads.Column() - left_ + 1 : heads.Row() - top_ + 1;
        const Value formulas = heads.FormulaR1C1();
        const automation::Array* several = formulas.array();
        const auto elements = several ? several->elements() : std::vector<Value>{formulas};
        const ResumeNext attempt(shared_.trace);
        for (std::size_t i = 0; i < elements.size(); ++i) {
            if (elements[i] == Value("")) continue;
            attempt([&] { fill_line(first + static_cast<std::int32_t>(i), automation::to_text(elements[i]), count); });
        }
    }

  private:
    // Steps along a line and lines beside each other, both from 1 on in the block.
    [[nodiscard]] Rectangle rectangle(std::int32_t first_step, std::int32_t first_line, std::int32_t last_step,
                                      std::int32_t last_line) const {
        return rows_ ? Rectangle{top_ + first_step - 1, left_ + first_line - 1, top_ + last_step - 1,
                                 left_ + last_line - 1}
                     : Rectangle{top_ + first_line - 1, left_ + first_step - 1, top_ + last_line - 1,
                                 left_ + last_step - 1};
    }

    [[nodiscard]] std::string shifted(const std::string& formula, std::int32_t step, std::int32_t line) const {
        const std::int32_t by = spacing_shift(step, group_size_, adjustment_);
        const Rectangle cell = rectangle(step, line, step, line);
        return shared_.spreadsheet().shift_formula(formula, rows_ ? by : 0, rows_ ? 0 : by, cell.top, cell.left);
    }

    // Cells of a line, one after the other, that get the same formula in R1C1.
    struct Run {
        std::string formula;
        std::int32_t cells;
    };

    void fill_line(std::int32_t line, const std::string& formula, std::int32_t count) const {
        const std::int32_t first = group_size_ + 1;
        std::vector<Run> runs;
        const auto add = [&](std::string text, std::int32_t cells) {
            if (!runs.empty() && runs.back().formula == text)
                runs.back().cells += cells;
            else
                runs.push_back({std::move(text), cells});
        };
        for (std::int32_t step = first; step <= count;) {
            // Cells of one shift have one formula, but where it leads off the sheet.
            const std::int32_t by = spacing_shift(step, group_size_, adjustment_);
            std::int32_t last = step;
            while (last < count && spacing_shift(last + 1, group_size_, adjustment_) == by) ++last;
            std::string at_first = shifted(formula, step, line);
            if (last == step || shifted(formula, last, line) == at_first) {
                add(std::move(at_first), last - step + 1);
                step = last + 1;
            } else {
                for (; step <= last; ++step) add(shifted(formula, step, line), 1);
            }
        }
        write(line, first, std::move(runs));
    }

    // Excel refuses an array for one cell that cannot be written: the halves show which.
    void write(std::int32_t line, std::int32_t first, std::vector<Run> runs) const {
        std::int32_t count = 0;
        for (const Run& run : runs) count += run.cells;
        const excel::Range cells = sheet_.Range(address_of(rectangle(first, line, first + count - 1, line)));
        Value content(runs.front().formula);
        if (runs.size() > 1) {
            automation::Array block(automation::Array::Bound{1, rows_ ? count : 1},
                                    automation::Array::Bound{1, rows_ ? 1 : count});
            auto element = block.elements().begin();
            for (const Run& run : runs) element = std::fill_n(element, run.cells, Value(run.formula));
            content = std::move(block);
        }
        if (count == 1 || (sheet_.ProtectContents() && cells.Locked() == Value(true))) {
            const ResumeNext attempt(shared_.trace);
            attempt([&] { cells.FormulaR1C1(content); });
            return;
        }
        const automation::Trace nobody;
        if (ResumeNext(nobody)([&] { cells.FormulaR1C1(content); })) return;
        const std::int32_t half = count / 2;
        std::vector<Run> rest;
        std::int32_t kept = 0;
        for (auto run = runs.begin(); run != runs.end(); kept += run++->cells) {
            if (kept + run->cells <= half) continue;
            rest.assign(run, runs.end());
            rest.front().cells = kept + run->cells - half;
            run->cells = half - kept;
            runs.erase(run->cells > 0 ? run + 1 : run, runs.end());
            break;
        }
        write(line, first, std::move(runs));
        write(line, first + half, std::move(rest));
    }

    const core::SharedState& shared_;
    excel::Worksheet sheet_;
    bool rows_;
    std::int32_t group_size_;
    std::int32_t adjustment_;
    std::int32_t top_;
    std::int32_t left_;
    std::int32_t height_;
    std::int32_t width_;
};

void run(const core::SharedState& shared, bool rows, const SpacingWords& words, const SpacingOptions& options) {
    const excel::Range selection = core::selected_range(shared);
    if (!selection) return;
    if (options.show) {
        fSmartFmlaSpacing form(shared, words, options);
        form.Show(shared.presenter);
        if (!form.confirmed()) return;
    } else if (options.group_size < 1) {
        forms::MsgBox(shared.presenter, shared.general().message(core::Text::GroupSizeOutOfRange), forms::vbOKOnly,
                      core::product_title);
        return;
    }
    const core::RedrawingPause pause(shared, selection);
    const ResumeNext attempt(shared.trace);
    const excel::Areas areas = selection.Areas();
    for (std::int32_t i = 1; i <= areas.Count(); ++i) {
        attempt([&] { Block(shared, areas.Item(i), rows, options.group_size, options.adjustment).fill(); });
    }
}

}  // namespace

std::int32_t spacing_shift(std::int32_t line, std::int32_t group_size, std::int32_t adjustment) {
    const double shift = (line - 1.0) / group_size * (static_cast<double>(group_size) - adjustment);
    return -automation::to_integer(Value(shift));
}

void SmartFormulaRowSpacing(core::SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        settings::SmartFmlaRowSpacingOptions& kept = shared.settings().SmartFmlaRowSpacing;
        run(shared, true, row_spacing_words, {kept.FmlaRows, kept.ReferenceRows, kept.Show});
    });
}

void SmartFormulaColumnSpacing(core::SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        settings::SmartFmlaColSpacingOptions& kept = shared.settings().SmartFmlaColSpacing;
        run(shared, false, column_spacing_words, {kept.FmlaCols, kept.ReferenceCols, kept.Show});
    });
}

}  // namespace kestrune::smart
