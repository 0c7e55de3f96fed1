#include "styles/commands/NumberDisplayCommands.h"

#include <fmt/format.h>

#include <functional>
#include <string>
#include <vector>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "core/bridges/Product.h"
#include "core/bridges/Selection.h"
#include "excel/Worksheet.h"
#include "forms/MsgBox.h"

namespace kestrune::styles {
namespace {

using automation::ResumeNext;
using automation::to_text;
using automation::Value;
using core::AdjustedNumberFormat;
using core::selected_range;
using Outcome = AdjustedNumberFormat::Outcome;

// Adjusts the format of some cells.
using Adjustment = std::function<AdjustedNumberFormat(const std::string& format, const excel::Range& cells)>;

bool names_general(std::string_view format) {
    constexpr std::string_view general = "General";
    for (std::size_t i = 0; i + general.size() <= format.size(); ++i) {
        if (automation::same_text(format.substr(i, general.size()), general)) return true;
    }
    return false;
}

// How the first number among some cells shows. Where its column is too narrow to tell, as it would in a wide one.
std::string first_number_shown(const core::SharedState& shared, const excel::Range& cells) {
    const excel::Range used(shared.spreadsheet().in_use(cells.object()));
    if (!used) return {};
    const auto shown = [](const excel::Range& cell, const Value& value) {
        std::string text = to_text(cell.Text());
        return text.find('#') == std::string::npos ? text : fmt::format("{:.10g}", automation::to_double(value));
    };
    const excel::Range first = used.Cells(1, 1);
    if (const Value value = first.Value2(); value.is(Value::Kind::Double)) return shown(first, value);
    const excel::Areas areas = used.Areas();
    const std::int32_t count = areas.Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        const excel::Range area = areas.Item(i);
        const Value values = area.Value2();
        const automation::Array* array = values.array();
        if (!array) {
            if (values.is(Value::Kind::Double)) return shown(area, values);
            continue;
        }
        const std::int32_t columns = array->bound(1).count;
        for (std::size_t at = 0; at < array->elements().size(); ++at) {
            const Value& value = array->elements()[at];
            if (!value.is(Value::Kind::Double)) continue;
            const auto place = static_cast<std::int32_t>(at);
            return shown(area.Cells(place / columns + 1, place % columns + 1), value);
        }
    }
    return {};
}

// What becomes of a whole selection: the best of what became of its parts, and whether any would be too long.
struct Result {
    bool adjusted = false;
    bool numeric = false;
    bool too_long = false;

    void add(Outcome outcome) {
        adjusted |= outcome == Outcome::Changed;
        numeric |= outcome != Outcome::NotNumeric;
        too_long |= outcome == Outcome::TooLong;
    }
};

void adjust_part(const std::string& format, const excel::Range& cells, const Adjustment& adjustment, Result& result) {
    const AdjustedNumberFormat adjusted = adjustment(format, cells);
    result.add(adjusted.outcome);
    // What stays is written as well where a part below it has changed: that part may reach under it.
    if (result.adjusted) cells.NumberFormat(adjusted.format);
}

void adjust(core::SharedState& shared, core::Text none, const Adjustment& adjustment) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    Result result;
    const bool read = attempt([&] {
        const Value common = selection.NumberFormat();
        if (!common.is(Value::Kind::Null)) {
            attempt([&] { adjust_part(to_text(common), selection, adjustment, result); });
            return;
        }
        const excel::Worksheet sheet = selection.Worksheet();
        const core::RedrawingPause pause(shared, selection);
        for (const auto& [address, format] : shared.spreadsheet().number_formats(selection.object())) {
            attempt([&, &address = address, &format = format] {
                adjust_part(format, sheet.Range(address), adjustment, result);
            });
        }
    });
    if (!read) return;
    const auto tell = [&](core::Text text) {
        attempt([&] {
            forms::MsgBox(shared.presenter, shared.general().message(text), forms::vbInformation, core::product_title);
        });
    };
    if (result.too_long) {
        tell(core::Text::NumberFormatTooLong);
    } else if (!result.numeric) {
        tell(none);
    }
}

void step_decimals(core::SharedState& shared, std::int32_t step) {
    adjust(shared, core::Text::NoDecimalsToAdjust, [&](const std::string& format, const excel::Range& cells) {
        const std::string shows = names_general(format) ? first_number_shown(shared, cells) : std::string();
        return shared.general().with_decimals(format, step, shows);
    });
}

void step_scale(core::SharedState& shared, std::int32_t step) {
    adjust(shared, core::Text::NoNumbersToScale,
           [&](const std::string& format, const excel::Range&) { return shared.general().with_scale(format, step); });
}

}  // namespace

void add_decimal_place(core::SharedState& shared, std::int32_t) { step_decimals(shared, 1); }
void remove_decimal_place(core::SharedState& shared, std::int32_t) { step_decimals(shared, -1); }
void scale_down(core::SharedState& shared, std::int32_t) { step_scale(shared, 1); }
void scale_up(core::SharedState& shared, std::int32_t) { step_scale(shared, -1); }

}  // namespace kestrune::styles
