#include "styles/commands/BorderCommands.h"

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/bridges/Selection.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"

namespace kestrune::styles {
namespace {

using automation::ResumeNext;
using automation::Value;
using core::selected_range;

void draw(const ResumeNext& attempt, const excel::Borders& borders, std::int32_t index) {
    excel::Border line;
    attempt.assign(line, [&] { return borders.Item(index); });
    attempt([&] { line.LineStyle(excel::xlContinuous); });
    attempt([&] { line.Weight(excel::xlThin); });
    attempt([&] { line.ColorIndex(excel::xlColorIndexAutomatic); });
}

// Whether there is a line all along, whatever kinds of lines it is made of.
bool drawn(const Value& line_style) {
    return !line_style.is(Value::Kind::Null) && automation::to_integer(line_style) != excel::xlNone;
}

}  // namespace

void toggle_edge(core::SharedState& shared, std::int32_t edge) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const excel::Borders borders = selection.Borders();
        const excel::Border line = borders.Item(edge);
        if (drawn(line.LineStyle())) {
            line.LineStyle(excel::xlNone);
        } else {
            draw(attempt, borders, edge);
        }
    });
}

void draw_outline(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const excel::Borders borders = selection.Borders();
        for (std::int32_t edge = excel::xlEdgeLeft; edge <= excel::xlEdgeRight; ++edge) draw(attempt, borders, edge);
    });
}

void draw_inside_grid(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    attempt([&] {
        const excel::Areas areas = selection.Areas();
        const std::int32_t count = areas.Count();
        for (std::int32_t i = 1; i <= count; ++i) {
            attempt([&] {
                const excel::Range area = areas.Item(i);
                const excel::Borders borders = area.Borders();
                // Excel refuses a line between columns where there is only one.
                if (area.Columns().Count() > 1) draw(attempt, borders, excel::xlInsideVertical);
                if (area.Rows().Count() > 1) draw(attempt, borders, excel::xlInsideHorizontal);
            });
        }
    });
}

void remove_borders(core::SharedState& shared, std::int32_t) {
    const excel::Range selection = selected_range(shared);
    if (!selection) return;
    const ResumeNext attempt(shared.trace);
    excel::Borders borders;
    attempt.assign(borders, [&] { return selection.Borders(); });
    attempt([&] { borders.LineStyle(excel::xlNone); });
    for (const std::int32_t diagonal : {excel::xlDiagonalDown, excel::xlDiagonalUp}) {
        attempt([&] { borders.Item(diagonal).LineStyle(excel::xlNone); });
    }
}

}  // namespace kestrune::styles
