#include "styles/commands/CellContentCommands.h"

#include <optional>
#include <string>
#include <string_view>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/bridges/FormulaRewriting.h"
#include "core/bridges/Selection.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"
#include "settings/cUserSettings.h"

namespace kestrune::styles {
namespace {

using automation::ResumeNext;
using automation::to_text;
using automation::Value;
using core::selected_range;

constexpr std::string_view trap = "=IF(ISERROR(";

constexpr std::string_view dashes = "------";
constexpr std::string_view entered_dashes = "'------";  // the apostrophe keeps it a text
constexpr double separator_height = 6;                  // points
constexpr double usual_height = 12.75;

// The first characters of a text, counted in UTF-16 units.
std::string_view first_units(std::string_view text, std::int32_t units) {
    std::size_t end = 0;
    while (end < text.size() && units > 0) {
        const auto lead = static_cast<unsigned char>(text[end]);
        const std::size_t bytes = lead < 0x80U ? 1 : lead < 0xE0U ? 2 : lead < 0xF0U ? 3 : 4;
        units -= bytes == 4 ? 2 : 1;
        end += bytes;
    }
    return text.substr(0, end);
}

std::optional<std::string> wrapped(const std::string& formula, std::string_view error) {
    if (!formula.starts_with('=') || formula.starts_with(trap)) return std::nullopt;
    const std::string expression = formula.substr(1);
    std::string text(trap);
    return text.append(expression).append("), ").append(error).append(", ").append(expression).append(")");
}

std::optional<std::string> unwrapped(const core::SharedState& shared, const std::string& formula) {
    if (!formula.starts_with(trap)) return std::nullopt;
    const std::string_view tested = std::string_view(formula).substr(trap.size());
    const std::int32_t closing = shared.general().closing_parenthesis(tested);
    if (closing <= 1) return std::nullopt;
    return std::string("=").append(first_units(tested, closing - 1));
}

// Parts of one area of the selection become separators or empty, as they are not or are.
void separate(const core::SharedState& shared, const excel::Worksheet& sheet, const excel::Range& area) {
    const ResumeNext attempt(shared.trace);
    for (const auto& [address, holds] : shared.spreadsheet().text_parts(area.object(), dashes)) {
        attempt([&, &address = address, holds = holds] {
            const excel::Range cells = sheet.Range(address);
            if (holds) {
                attempt([&] { cells.Formula(""); });
                attempt([&] { cells.RowHeight(usual_height); });
                return;
            }
            attempt([&] { cells.Formula(entered_dashes); });
            attempt([&] { cells.Font().Color(0); });
            attempt([&] { cells.HorizontalAlignment(excel::xlRight); });
            attempt([&] { cells.RowHeight(separator_height); });
        });
    }
}

}  // namespace

void error_trap(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    std::string first;
    attempt([&] {
        const excel::Range cell = selection.Cells(1, 1);
        // A text may begin like a formula.
        if (cell.HasFormula() == Value(true)) first = to_text(cell.Formula());
    });
    if (!first.starts_with('=')) return;
    const core::RedrawingPause pause(shared, selection);
    if (first.starts_with(trap)) {
        core::rewrite_formulas(shared, selection, [&](const std::string& text) { return unwrapped(shared, text); });
        return;
    }
    std::string error;
    attempt.assign(error, [&] { return shared.settings().ErrorMsg; });
    core::rewrite_formulas(shared, selection, [&](const std::string& text) { return wrapped(text, error); });
    attempt([&] { selection.HorizontalAlignment(excel::xlRight); });
}

void separator_line(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    const core::RedrawingPause pause(shared, selection);
    attempt([&] {
        const excel::Worksheet sheet = selection.Worksheet();
        const excel::Areas areas = selection.Areas();
        const std::int32_t count = areas.Count();
        for (std::int32_t i = 1; i <= count; ++i) attempt([&] { separate(shared, sheet, areas.Item(i)); });
    });
}

}  // namespace kestrune::styles
