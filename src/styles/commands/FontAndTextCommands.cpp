#include "styles/commands/FontAndTextCommands.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/bridges/Selection.h"
#include "excel/Worksheet.h"
#include "settings/cUserSettings.h"
#include "styles/FontSizes.h"

namespace kestrune::styles {
namespace {

using automation::ResumeNext;
using automation::Value;
using core::selected_range;

void step_font_size(core::SharedState& shared, double (*next)(double points)) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const excel::Font font = selection.Font();
        const Value common = font.Size();
        if (!common.is(Value::Kind::Null)) return font.Size(next(automation::to_double(common)));
        const excel::Worksheet sheet = selection.Worksheet();
        const core::RedrawingPause pause(shared, selection);
        for (const auto& [address, points] : shared.spreadsheet().font_sizes(selection.object())) {
            attempt([&] { sheet.Range(address).Font().Size(next(points)); });
        }
    });
}

}  // namespace

void increase_font_size(core::SharedState& shared, std::int32_t) { step_font_size(shared, larger_font_size); }

void decrease_font_size(core::SharedState& shared, std::int32_t) { step_font_size(shared, smaller_font_size); }

void toggle_wrap_text(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] { selection.WrapText(selection.WrapText() != Value(true)); });
}

void clear_formats(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] { selection.ClearFormats(); });
    attempt([&] {
        if (const StyleRef general = shared.settings().Styles->Item("BR General")) general->Apply(shared, selection);
    });
}

}  // namespace kestrune::styles
