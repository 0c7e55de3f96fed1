#include "styles/commands/SheetStyleCommands.h"

#include <fmt/format.h>

#include <memory>
#include <string>

#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "core/bridges/Selection.h"
#include "excel/Worksheet.h"
#include "forms/MsgBox.h"
#include "settings/cUserSettings.h"
#include "settings/mReadWrite.h"

namespace kestrune::styles {

using automation::ResumeNext;

void apply_sheet_style(core::SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    const excel::Worksheet sheet = core::active_worksheet(shared);
    if (!sheet) return;
    std::string name;
    attempt.assign(name, [&] { return sheet.Name(); });
    const std::string question = fmt::format(
        "This feature will apply the selected sheet style from the user settings to '{}' and may not be undone.  Do "
        "you "
        "wish to proceed?",
        name);
    if (forms::MsgBox(shared.presenter, question, forms::vbOKCancel + forms::vbInformation, core::product_title) !=
        forms::vbOK) {
        return;
    }
    excel::Range cells;
    attempt.assign(cells, [&] { return sheet.Cells(); });
    const core::RedrawingPause pause(shared, cells);
    attempt([&] {
        if (const StyleRef& style = shared.settings().SheetStyle) style->Apply(shared, cells);
    });
    attempt([&] { cells.FormatConditions().Delete(); });
}

void capture_paintbrush(core::SharedState& shared, std::int32_t) {
    const ResumeNext attempt(shared.trace);
    excel::Range cell;
    attempt.assign(cell, [&] { return excel::Application(shared.application).ActiveCell(); });
    if (!cell) return;
    attempt([&] {
        settings::cUserSettings& settings = shared.settings();
        const std::string stem = shared.general().message(core::Text::PaintbrushStem);
        // Fields start as Excel shows a plain cell, and nothing is transparent: all that is captured is painted.
        auto style = std::make_shared<cStyle>();
        for (std::int32_t i = 1; style->FriendlyName.empty(); ++i) {
            const std::string name = stem + std::to_string(i);
            if (!settings.Styles->Item(name)) style->FriendlyName = name;
        }
        if (!settings.Styles->Add(style)) return;
        settings.BRPaintbrushStyle = style;
        style->CaptureFromCell(shared, {});
        // A failure is in the trace; the style is there until Excel closes.
        settings::SaveUserPreferences(shared, settings);
    });
}

void apply_paintbrush(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = core::selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        if (const StyleRef& style = shared.settings().BRPaintbrushStyle) style->Apply(shared, selection);
    });
}

}  // namespace kestrune::styles
