#include "smart/fill/FillChecks.h"

#include <fmt/format.h>

#include <cmath>

#include "core/bridges/Product.h"
#include "forms/MsgBox.h"
#include "smart/fill/Series.h"

namespace kestrune::smart {
namespace {

using core::Text;

// More cells than these are asked about.
constexpr double many_cells = 1000;
constexpr std::int32_t longest_spacing = 1'048'575;

FillProblem refuse(const core::SharedState& shared, Text number, FillProblem problem) {
    forms::MsgBox(shared.presenter, shared.general().message(number), forms::vbOKOnly, core::product_title);
    return problem;
}

FillProblem ask(const core::SharedState& shared, double cells, std::string_view question) {
    if (!(cells > many_cells)) return FillProblem::None;
    const std::string text = fmt::format("{} {:.0f} cells.  Are you sure you want to continue?", question, cells);
    const bool wanted = forms::MsgBox(shared.presenter, text, forms::vbYesNo, core::product_title) == forms::vbYes;
    return wanted ? FillProblem::None : FillProblem::Declined;
}

bool in_range(automation::Date date) {
    return date.serial >= first_fill_date.serial && date.serial <= last_fill_date.serial;
}

}  // namespace

FillProblem check_fill(const core::SharedState& shared, const settings::SmartFillDatesOptions& options) {
    if (!in_range(options.StartDate)) return refuse(shared, Text::StartIsNoDate, FillProblem::Start);
    if (!in_range(options.EndDate)) return refuse(shared, Text::EndIsNoDate, FillProblem::End);
    if (options.EndDate.serial < options.StartDate.serial) {
        return refuse(shared, Text::EndBeforeStart, FillProblem::End);
    }
    if (options.Spacing < 1 || options.Spacing > longest_spacing) {
        return refuse(shared, Text::SpacingOutOfRange, FillProblem::Spacing);
    }
    return ask(shared,
               estimated_dates(options.StartDate, options.EndDate, date_step(options.DateUnit), options.Spacing),
               "Filling in the dates you have requested would require approximately");
}

FillProblem check_fill(const core::SharedState& shared, const settings::SmartFillNumbersOptions& options) {
    if (!(options.Interval > 0)) return refuse(shared, Text::IntervalNotPositive, FillProblem::Interval);
    if (options.Spacing < 1 || options.Spacing > longest_spacing) {
        return refuse(shared, Text::SpacingOutOfRange, FillProblem::Spacing);
    }
    // No sheet has room for more, and no memory perhaps.
    if (!(std::abs(options.EndValue - options.StartValue) / options.Interval <= longest_spacing)) {
        return refuse(shared, Text::SeriesDoesNotFit, FillProblem::Interval);
    }
    return ask(shared, estimated_numbers(options.StartValue, options.EndValue, options.Interval, options.Spacing),
               "Filling in the numbers you have requested would require");
}

}  // namespace kestrune::smart
