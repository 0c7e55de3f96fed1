#include <optional>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "styles/Sides.h"
#include "styles/cStyle.h"

namespace kestrune::styles {

using automation::ResumeNext;
using automation::to_integer;
using excel::xlNone;

void cStyle::Apply(const core::SharedState& shared, const excel::Range& range) {
    if (!range) return;
    const ResumeNext attempt(shared.trace);
    excel::Font font;
    attempt.assign(font, [&] { return range.Font(); });
    excel::Workbook workbook;
    if (!bTransFontColor || !bTransCellColor || !bTransBorders) {
        attempt.assign(workbook, [&] { return range.Worksheet().Parent(); });
    }

    if (!bTransNumberFormat) attempt([&] { range.NumberFormat(NumberFormat); });
    if (!bTransFontSetting) attempt([&] { font.Name(FontName); });
    if (!bTransFontStyle) {
        attempt([&] { font.Bold(Bold); });
        attempt([&] { font.Italic(Italics); });
    }
    if (!bTransFontSize) attempt([&] { font.Size(Size); });
    if (!bTransUnderline) attempt([&] { font.Underline(Underline); });
    apply_colors(shared, range, font, workbook);
    // Indent goes first: Excel resets it when a later alignment cannot carry one.
    if (!bTransIndents) attempt([&] { range.IndentLevel(Indents); });
    if (!bTransHorizontalAlignment) attempt([&] { range.HorizontalAlignment(HorizontalAlignment); });
    if (!bTransVerticalAlignment) attempt([&] { range.VerticalAlignment(VerticalAlignment); });
    if (!bTransOrientation) attempt([&] { range.Orientation(Orientation); });
    if (!bTransShrinkToFit) attempt([&] { range.ShrinkToFit(ShrinkToFit); });
    if (!bTransWrapTest) attempt([&] { range.WrapText(WrapText); });
    if (!bTransStrikeThrough) attempt([&] { font.Strikethrough(FontStrikeThrough); });
    if (!bTransBorders) apply_borders(shared, range, workbook);
}

void cStyle::apply_colors(const core::SharedState& shared, const excel::Range& range, const excel::Font& font,
                          const excel::Workbook& workbook) {
    const ResumeNext attempt(shared.trace);
    if (!bTransFontColor) {
        attempt([&] { font.Color(FontColor); });
        attempt.assign(AsFontColor, [&] { return workbook.Colors(font.ColorIndex()); });
    }
    if (!bTransCellColor) {
        excel::Interior interior;
        attempt.assign(interior, [&] { return range.Interior(); });
        attempt([&] {
            interior.ColorIndex(
                CellColor == no_fill ? xlNone : shared.spreadsheet().nearest_color_index(CellColor, workbook.object()));
        });
        attempt.assign(AsCellColorIndex, [&] { return to_integer(interior.ColorIndex()); });
    }
}

namespace {

struct Line {
    std::int32_t weight;
    std::int32_t style;
    std::optional<std::int32_t> color_index;
};

// The lines of one area; an inside line exists only where two cells meet in the area.
struct InsideLines {
    bool vertical = false;
    bool horizontal = false;
};

// Whether any of the three writes went through.
bool draw(const ResumeNext& attempt, const excel::Borders& borders, std::int32_t index, const Line& line) {
    excel::Border border;
    attempt.assign(border, [&] { return borders.Item(index); });
    bool drawn = attempt([&] { border.Weight(line.weight); });
    drawn |= attempt([&] { border.LineStyle(line.style); });
    if (line.color_index) drawn |= attempt([&] { border.ColorIndex(*line.color_index); });
    return drawn;
}

bool draw_selected(const ResumeNext& attempt, const StyleFields& style, const excel::Range& range, const Line& line,
                   InsideLines inside) {
    excel::Borders borders;
    attempt.assign(borders, [&] { return range.Borders(); });
    bool drawn = false;
    for (const Side& side : sides) {
        if (style.*side.selected) drawn |= draw(attempt, borders, side.edge, line);
    }
    if (inside.vertical) drawn |= draw(attempt, borders, excel::xlInsideVertical, line);
    if (inside.horizontal) drawn |= draw(attempt, borders, excel::xlInsideHorizontal, line);
    return drawn;
}

// Every cell of the range gets its own selected sides. Neighbours share the line between them, so a
// left or right side draws all the lines between columns, a top or bottom side all those between rows:
// a handful of calls an area, where one a cell would take minutes on a long column.
bool draw_grid(const ResumeNext& attempt, const StyleFields& style, const excel::Range& range, const Line& line) {
    excel::Areas areas;
    attempt.assign(areas, [&] { return range.Areas(); });
    std::int32_t count = 0;
    attempt.assign(count, [&] { return areas.Count(); });
    bool drawn = false;
    for (std::int32_t i = 1; i <= count; ++i) {
        excel::Range area;
        attempt.assign(area, [&] { return areas.Item(i); });
        InsideLines inside;
        if (style.BorderLeft || style.BorderRight) {
            attempt.assign(inside.vertical, [&] { return area.Columns().Count() > 1; });
        }
        if (style.BorderTop || style.BorderBottom) {
            attempt.assign(inside.horizontal, [&] { return area.Rows().Count() > 1; });
        }
        drawn |= draw_selected(attempt, style, area, line, inside);
    }
    return drawn;
}

}  // namespace

void cStyle::apply_borders(const core::SharedState& shared, const excel::Range& range,
                           const excel::Workbook& workbook) {
    const ResumeNext attempt(shared.trace);
    excel::Borders borders;
    attempt.assign(borders, [&] { return range.Borders(); });
    // The lines inside the range stay: a style without inner borders leaves a table's grid alone.
    for (std::int32_t index = excel::xlDiagonalDown; index <= excel::xlEdgeRight; ++index) {
        attempt([&] { borders.Item(index).LineStyle(xlNone); });
    }
    if (BorderStyle == xlNone) return;

    Line line{BorderWeight, BorderStyle, {}};
    attempt.assign(line.color_index,
                   [&] { return shared.spreadsheet().nearest_color_index(BorderColor, workbook.object()); });
    const bool drawn =
        BordersInternal ? draw_grid(attempt, *this, range, line) : draw_selected(attempt, *this, range, line, {});
    // A sheet that refuses every line says nothing about the style's own.
    const bool selected = BorderLeft || BorderTop || BorderBottom || BorderRight;
    if (selected && !drawn) return;
    if (!BordersInternal) return ReadBackBorder(shared, range);
    attempt([&] { ReadBackBorder(shared, range.Cells(1, 1)); });
}

void cStyle::ReadBackBorder(const core::SharedState& shared, const excel::Range& range) {
    const ResumeNext attempt(shared.trace);
    for (const Side& side : sides) {
        if (!(this->*side.selected)) continue;
        excel::Border border;
        attempt.assign(border, [&] { return range.Borders(side.edge); });
        attempt.assign(BorderWeight, [&] { return to_integer(border.Weight()); });
        attempt.assign(BorderStyle, [&] { return to_integer(border.LineStyle()); });
        attempt.assign(AsBorderColorIndex, [&] { return to_integer(border.ColorIndex()); });
        return;
    }
    BorderWeight = excel::xlThin;
    BorderStyle = xlNone;
    AsBorderColorIndex = 0;
}

}  // namespace kestrune::styles
