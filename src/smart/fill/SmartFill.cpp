#include "smart/fill/SmartFill.h"

#include <algorithm>
#include <string>
#include <vector>

#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "core/bridges/Selection.h"
#include "forms/MsgBox.h"
#include "settings/cUserSettings.h"
#include "smart/CellGroups.h"
#include "smart/fill/FillChecks.h"
#include "smart/fill/Series.h"
#include "smart/fill/fSmartFillDates.h"
#include "smart/fill/fSmartFillNumbers.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using automation::Value;

constexpr std::int32_t sheet_rows = 1'048'576;
constexpr std::int32_t sheet_columns = 16'384;

class Filler {
  public:
    Filler(const core::SharedState& shared, const excel::Range& first, std::int32_t spacing, bool across)
        : shared_(shared),
          sheet_(first.Worksheet()),
          row_(first.Row()),
          column_(first.Column()),
          spacing_(spacing),
          across_(across) {}

    void fill(const std::vector<Value>& series, const std::string& style) const {
        const std::int64_t last = (static_cast<std::int64_t>(series.size()) - 1) * spacing_;
        if (last + (across_ ? column_ : row_) > (across_ ? sheet_columns : sheet_rows)) {
            forms::MsgBox(shared_.presenter, shared_.general().message(core::Text::SeriesDoesNotFit), forms::vbOKOnly,
                          core::product_title);
            return;
        }
        const auto count = static_cast<std::int32_t>(last) + 1;
        const excel::Range block = sheet_.Range(address_of(rectangle(0, count - 1)));
        const ResumeNext attempt(shared_.trace);
        bool wanted = true;
        attempt.assign(wanted, [&] {
            using enum core::Aspects;
            return shared_.spreadsheet().record(block.object(), Contents | Formats | Filled);
        });
        if (!wanted) return;
        const core::RedrawingPause pause(shared_, block);
        attempt([&] { write(block, series, count); });
        attempt([&] { apply_style(style, static_cast<std::int32_t>(series.size())); });
    }

  private:
    // The cells from one to another, both from 0 on.
    [[nodiscard]] Rectangle rectangle(std::int32_t first, std::int32_t last) const {
        return across_ ? Rectangle{row_, column_ + first, row_, column_ + last}
                       : Rectangle{row_ + first, column_, row_ + last, column_};
    }

    // At once where nothing stands between the steps.
    void write(const excel::Range& block, const std::vector<Value>& series, std::int32_t count) const {
        const Value formulas = block.Formula();
        bool room = true;
        if (const automation::Array* cells = formulas.array()) {
            for (std::size_t i = 0; i < cells->elements().size(); ++i) {
                room = room && (i % static_cast<std::size_t>(spacing_) == 0 || cells->elements()[i] == Value(""));
            }
        }
        automation::Array values(automation::Array::Bound{1, across_ ? 1 : count},
                                 automation::Array::Bound{1, across_ ? count : 1});
        for (std::size_t i = 0; i < series.size(); ++i) {
            values.elements()[i * static_cast<std::size_t>(spacing_)] = series[i];
        }
        const automation::Trace nobody;
        if (room && ResumeNext(nobody)([&] { block.Value(count == 1 ? series.front() : Value(values)); })) return;
        const ResumeNext attempt(shared_.trace);
        for (std::size_t i = 0; i < series.size(); ++i) {
            const auto at = static_cast<std::int32_t>(i) * spacing_;
            attempt([&] { sheet_.Range(address_of(rectangle(at, at))).Value(series[i]); });
        }
    }

    void apply_style(const std::string& name, std::int32_t steps) const {
        const styles::StyleRef style = shared_.settings().Styles->Item(name);
        if (!style) return;
        RectangleBuilder cells;
        for (std::int32_t i = 0; i < steps; ++i) {
            const Rectangle cell = rectangle(i * spacing_, i * spacing_);
            cells.add(cell.top, cell.left);
        }
        CellGroups(shared_, sheet_, std::move(cells).rectangles()).each([&](const excel::Range& range) {
            style->Apply(shared_, range);
        });
    }

    const core::SharedState& shared_;
    excel::Worksheet sheet_;
    std::int32_t row_;
    std::int32_t column_;
    std::int32_t spacing_;
    bool across_;
};

// Shows the dialog when it is to be shown, checks, and fills the series that the options then mean.
template <class Dialog, class Options, class Series>
void run(core::SharedState& shared, Options settings::SettingValues::*group, Series&& series) {
    const excel::Range selection = core::selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        Options& kept = shared.settings().*group;
        if (kept.Show) {
            Dialog form(shared, kept);
            form.Show(shared.presenter);
            if (!form.confirmed()) return;
        } else if (check_fill(shared, kept) != FillProblem::None) {
            return;
        }
        const Options options = kept;
        std::vector<Value> values;
        for (const auto& value : series(options)) values.emplace_back(value);
        if (values.empty()) return;
        Filler(shared, selection.Cells(1, 1), options.Spacing, options.Across).fill(values, options.Style);
    });
}

}  // namespace

void SmartFillDates(core::SharedState& shared, std::int32_t) {
    run<fSmartFillDates>(shared, &settings::SettingValues::SmartFillDates, [](const auto& options) {
        return date_series(options.StartDate, options.EndDate, date_step(options.DateUnit));
    });
}

void SmartFillNumbers(core::SharedState& shared, std::int32_t) {
    run<fSmartFillNumbers>(shared, &settings::SettingValues::SmartFillNumbers, [](const auto& options) {
        return number_series(options.StartValue, options.EndValue, options.Interval);
    });
}

}  // namespace kestrune::smart
