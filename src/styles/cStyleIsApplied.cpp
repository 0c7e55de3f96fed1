#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "styles/Sides.h"
#include "styles/cStyle.h"

namespace kestrune::styles {
namespace {

using automation::ResumeNext;
using excel::Value;
using excel::xlNone;

bool same(const Value& shown, std::int32_t wanted) { return automation::to_double(shown) == wanted; }
bool same(const Value& shown, bool wanted) { return automation::to_boolean(shown) == wanted; }
bool same(const Value& shown, const std::string& wanted) { return automation::to_text(shown) == wanted; }

// Tells of one property after the other whether a cell shows what is wanted. A reading that fails
// shows something else; Null, the answer for text of mixed look, is not different from anything.
class Comparison {
  public:
    explicit Comparison(const automation::Trace& trace) : attempt_(trace) {}

    template <class Reading, class Wanted>
    bool shows(Reading&& read, const Wanted& wanted) const {
        bool equal = false;
        attempt_([&] {
            const Value shown = read();
            equal = shown.is(Value::Kind::Null) || same(shown, wanted);
        });
        return equal;
    }

  private:
    ResumeNext attempt_;
};

// The workbook's palette entry that stands for a font's colour; Null for text of several colours.
Value palette_color(const excel::Range& cell, const excel::Font& font) {
    Value index = font.ColorIndex();
    if (index.is(Value::Kind::Null)) return index;
    return cell.Worksheet().Parent().Colors(index);
}

}  // namespace

bool cStyle::IsApplied(const core::SharedState& shared, const excel::Range& range) const {
    const ResumeNext attempt(shared.trace);
    const Comparison cell_has(shared.trace);
    excel::Range cell;
    attempt.assign(cell, [&] { return range.Cells(1, 1); });
    excel::Font font;
    if (!bTransFontSetting || !bTransFontStyle || !bTransFontSize || !bTransUnderline || !bTransFontColor ||
        !bTransStrikeThrough) {
        attempt.assign(font, [&] { return cell.Font(); });
    }
    // What does not count is not read.
    const auto shows = [&](bool transparent, auto&& read, const auto& wanted) {
        return transparent || cell_has.shows(read, wanted);
    };
    return shows(
               bTransNumberFormat, [&] { return cell.NumberFormat(); }, NumberFormat) &&
           shows(
               bTransFontSetting, [&] { return font.Name(); }, FontName) &&
           shows(
               bTransFontStyle, [&] { return font.Bold(); }, Bold) &&
           shows(
               bTransFontStyle, [&] { return font.Italic(); }, Italics) &&
           shows(
               bTransFontSize, [&] { return font.Size(); }, Size) &&
           shows(
               bTransUnderline, [&] { return font.Underline(); }, Underline) &&
           shows(
               bTransFontColor, [&] { return palette_color(cell, font); }, AsFontColor) &&
           shows(
               bTransCellColor, [&] { return cell.Interior().ColorIndex(); },
               CellColor == no_fill ? xlNone : AsCellColorIndex) &&
           shows(
               bTransIndents, [&] { return cell.IndentLevel(); }, Indents) &&
           shows(
               bTransHorizontalAlignment, [&] { return cell.HorizontalAlignment(); }, HorizontalAlignment) &&
           shows(
               bTransVerticalAlignment, [&] { return cell.VerticalAlignment(); }, VerticalAlignment) &&
           shows(
               bTransOrientation, [&] { return cell.Orientation(); }, Orientation) &&
           shows(
               bTransShrinkToFit, [&] { return cell.ShrinkToFit(); }, ShrinkToFit) &&
           shows(
               bTransWrapTest, [&] { return cell.WrapText(); }, WrapText) &&
           shows(
               bTransStrikeThrough, [&] { return font.Strikethrough(); }, FontStrikeThrough) &&
           (bTransBorders || borders_are_applied(shared, range, cell));
}

bool cStyle::borders_are_applied(const core::SharedState& shared, const excel::Range& range,
                                 const excel::Range& cell) const {
    const ResumeNext attempt(shared.trace);
    const Comparison edge_has(shared.trace);
    const auto has_line = [&](const excel::Range& where, const Side& side) {
        excel::Border border;
        attempt.assign(border, [&] { return where.Borders(side.edge); });
        if (!(this->*side.selected)) return edge_has.shows([&] { return border.LineStyle(); }, xlNone);
        return edge_has.shows([&] { return border.LineStyle(); }, BorderStyle) &&
               edge_has.shows([&] { return border.Weight(); }, BorderWeight) &&
               edge_has.shows([&] { return border.ColorIndex(); }, AsBorderColorIndex);
    };

    // The right and bottom edges of the top-left cell of several cells are lines inside the range. An outline
    // neither draws nor clears those, and a grid draws them for the neighbour's sake too.
    std::int32_t rows = 1;
    std::int32_t columns = 1;
    attempt.assign(rows, [&] { return range.Rows().Count(); });
    attempt.assign(columns, [&] { return range.Columns().Count(); });
    const auto carries = [&](const Side& side) {
        const bool bottom = side.edge == excel::xlEdgeBottom && rows > 1;
        const bool right = side.edge == excel::xlEdgeRight && columns > 1;
        if (!bottom && !right) return true;
        return BordersInternal && (this->*side.selected || !(bottom ? BorderTop : BorderLeft));
    };

    bool a_line_was_seen = false;
    for (const Side& side : sides) {
        if (!carries(side)) continue;
        if (!has_line(cell, side)) return false;
        a_line_was_seen |= this->*side.selected;
    }
    if (a_line_was_seen) return true;
    // Only sides that the top-left cell cannot carry are bordered (a bottom line under several rows):
    // without a look at them every range without borders would show the style.
    for (const Side& side : sides) {
        if (carries(side) || !(this->*side.selected)) continue;
        if (!has_line(cell, side) && !has_line(range, side)) return false;
    }
    return true;
}

}  // namespace kestrune::styles
