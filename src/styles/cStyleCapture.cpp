#include <optional>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "excel/Application.h"
#include "styles/Sides.h"
#include "styles/cStyle.h"

namespace kestrune::styles {
namespace {

using automation::ResumeNext;
using automation::to_boolean;
using automation::to_integer;
using automation::to_text;
using excel::Value;
using excel::xlNone;

}  // namespace

void cStyle::CaptureFromCell(const core::SharedState& shared, excel::Range cell) {
    const ResumeNext attempt(shared.trace);
    if (!cell) attempt.assign(cell, [&] { return excel::Application(shared.application).ActiveCell(); });
    if (!cell) return;
    excel::Font font;
    excel::Workbook workbook;
    attempt.assign(font, [&] { return cell.Font(); });
    attempt.assign(workbook, [&] { return cell.Worksheet().Parent(); });

    attempt.assign(NumberFormat, [&] { return to_text(cell.NumberFormat()); });
    attempt.assign(Underline, [&] { return to_integer(font.Underline()); });
    attempt.assign(HorizontalAlignment, [&] { return to_integer(cell.HorizontalAlignment()); });
    attempt.assign(VerticalAlignment, [&] { return to_integer(cell.VerticalAlignment()); });
    attempt.assign(Orientation, [&] { return to_integer(cell.Orientation()); });
    attempt.assign(Indents, [&] { return to_integer(cell.IndentLevel()); });
    attempt.assign(ShrinkToFit, [&] { return to_boolean(cell.ShrinkToFit()); });
    attempt.assign(WrapText, [&] { return to_boolean(cell.WrapText()); });
    attempt.assign(FontStrikeThrough, [&] { return to_boolean(font.Strikethrough()); });
    attempt.assign(FontName, [&] { return to_text(font.Name()); });
    attempt.assign(Bold, [&] { return to_boolean(font.Bold()); });
    attempt.assign(Italics, [&] { return to_boolean(font.Italic()); });
    attempt.assign(Size, [&] { return to_integer(font.Size()); });

    attempt([&] {
        const Value index = font.ColorIndex();
        // The automatic colour is in no palette; it shows as black.
        FontColor = index == Value(excel::xlColorIndexAutomatic) ? 0 : workbook.Colors(index);
        AsFontColor = FontColor;
    });
    attempt([&] {
        const std::int32_t index = to_integer(cell.Interior().ColorIndex());
        CellColor = index == xlNone ? no_fill : workbook.Colors(index);
        AsCellColorIndex = index;
    });
    capture_borders(shared, cell, workbook);
}

void cStyle::capture_borders(const core::SharedState& shared, const excel::Range& cell,
                             const excel::Workbook& workbook) {
    const ResumeNext attempt(shared.trace);
    excel::Borders borders;
    attempt.assign(borders, [&] { return cell.Borders(); });
    std::optional<Value> all;
    attempt.assign(all, [&] { return borders.LineStyle(); });
    if (!all) return;

    const auto capture_line = [&](const auto& source) {
        attempt.assign(BorderStyle, [&] { return to_integer(source.LineStyle()); });
        attempt.assign(BorderWeight, [&] { return to_integer(source.Weight()); });
        if (BorderStyle == xlNone) return;
        attempt([&] {
            const Value index = source.ColorIndex();
            // As with fonts, the automatic colour is in no palette.
            BorderColor = index == Value(excel::xlColorIndexAutomatic) ? 0 : workbook.Colors(index);
            AsBorderColorIndex = to_integer(index);
        });
    };
    if (!all->is(Value::Kind::Null)) {
        capture_line(borders);
        for (const Side& side : sides) this->*side.selected = BorderStyle != xlNone;
        return;
    }
    bool captured = false;
    for (const Side& side : sides) {
        excel::Border border;
        attempt.assign(border, [&] { return borders.Item(side.edge); });
        attempt([&] {
            const Value style = border.LineStyle();
            this->*side.selected = !style.is(Value::Kind::Null) && to_integer(style) != xlNone;
        });
        if (this->*side.selected && !captured) {
            captured = true;
            capture_line(border);
        }
    }
}

}  // namespace kestrune::styles
