#pragma once

#include <array>
#include <cstdint>
#include <random>
#include <string>

#include "automation/AutomationError.h"
#include "excel/Constants.h"
#include "snapshot/TwoExcels.h"

namespace kestrune::brxllib::undo {

// Random changes of cells through the object model; the same seed makes the same changes.
class Strokes {
  public:
    explicit Strokes(unsigned seed) : random_(seed) {}

    std::uint32_t below(std::uint32_t end) { return static_cast<std::uint32_t>(random_() % end); }
    template <class T, std::size_t n>
    const T& pick(const T (&choices)[n]) {
        return choices[below(n)];
    }

    // An address: mostly a few cells, at times several areas, whole rows or columns, the sheet.
    std::string address() {
        const auto row = [&] { return std::to_string(1 + below(12)); };
        const auto column = [&] { return std::string(1, static_cast<char>('A' + below(8))); };
        switch (below(12)) {
            case 0:
                return column() + ":" + column();
            case 1:
                return row() + ":" + row();
            case 2:
                return below(3) == 0 ? "A:XFD" : column() + row();
            case 3:
                return column() + row() + "," + column() + row() + ":" + column() + row();
            default:
                return column() + row() + ":" + column() + row();
        }
    }

    // One change of these cells, or one that Excel refuses.
    void stroke(const excel::Range& cells) {
        try {
            const bool few = cells.CountLarge() <= 64 && cells.Areas().Count() == 1;
            switch (below(few ? 12 : 8)) {
                case 0:
                case 1:
                    return format(cells);
                case 2:
                    return font(cells.Font());
                case 3:
                    return fill(cells.Interior());
                case 4:
                case 5:
                    // The lines of a whole sheet leave a cell in each of its last row and column.
                    return cells.CountLarge() < 10'000'000 ? lines(cells) : fill(cells.Interior());
                case 6:
                    return spans(cells);
                case 7:
                    return condition(cells);
                case 8:
                    return cells.MergeCells(below(3) > 0);
                default:
                    return content(cells);
            }
        } catch (const automation::AutomationError&) {
        }
    }

  private:
    template <class Colored>
    void color(const Colored& colored) {
        if (below(3) == 0) {
            colored.ThemeColor(static_cast<std::int32_t>(1 + below(10)));
            colored.TintAndShade(pick({0.0, 0.25, -0.5}));
        } else if (below(3) == 0) {
            colored.ColorIndex(excel::xlColorIndexAutomatic);
        } else {
            colored.Color(pick({0, 255, 0xFFFFFF, 0x336699}));
        }
    }

    void format(const excel::Range& cells) {
        switch (below(12)) {
            case 0:
                return cells.NumberFormat(pick({"General", "0.00", "@", "m/d/yyyy", "0%"}));
            case 1:
                return cells.HorizontalAlignment(
                    pick({excel::xlGeneral, excel::xlLeft, excel::xlRight, excel::xlCenterAcrossSelection}));
            case 2:
                return cells.IndentLevel(static_cast<std::int32_t>(below(4)));
            case 3:
                return cells.VerticalAlignment(pick({excel::xlTop, excel::xlBottom, excel::xlCenter}));
            case 4:
                return cells.Orientation(pick({0, 45, -90, -4128}));
            case 5:
                return cells.WrapText(below(2) == 0);
            case 6:
                return cells.ShrinkToFit(below(2) == 0);
            case 7:
                return cells.Locked(below(2) == 0);
            case 8:
                return cells.FormulaHidden(below(2) == 0);
            case 9:
                return cells.ReadingOrder(pick({-5002, -5003, -5004}));
            case 10:
                return cells.AddIndent(below(2) == 0);
            default:
                return cells.Style(pick({"Normal", "Input", "Share"}));
        }
    }

    void font(const excel::Font& font) {
        switch (below(9)) {
            case 0:
                return font.Name(pick({"Arial", "Calibri", "Courier New"}));
            case 1:
                return font.Size(pick({8.0, 11.0, 13.5}));
            case 2:
                return font.Bold(below(2) == 0);
            case 3:
                return font.Italic(below(2) == 0);
            case 4:
                return font.Underline(pick({excel::xlUnderlineStyleNone, excel::xlUnderlineStyleDouble}));
            case 5:
                return font.Strikethrough(below(2) == 0);
            case 6:
                return below(2) == 0 ? font.Superscript(below(2) == 0) : font.Subscript(below(2) == 0);
            default:
                return color(font);
        }
    }

    void fill(const excel::Interior& interior) {
        switch (below(4)) {
            case 0:
                return interior.ColorIndex(excel::xlNone);
            case 1:
                interior.Pattern(pick({1, 17, -4121, 10}));
                return interior.PatternColor(pick({0, 255, 0x00FF00}));
            default:
                return color(interior);
        }
    }

    void lines(const excel::Range& cells) {
        if (below(6) == 0) return cells.Borders().LineStyle(pick({excel::xlNone, excel::xlContinuous}));
        const excel::Border line = cells.Borders(static_cast<std::int32_t>(5 + below(8)));
        switch (below(4)) {
            case 0:
                return line.LineStyle(excel::xlNone);
            case 1:
                return line.Weight(pick({excel::xlHairline, excel::xlThin, excel::xlMedium, excel::xlThick}));
            case 2:
                return color(line);
            default:
                return line.LineStyle(pick({excel::xlContinuous, excel::xlDash, excel::xlDouble}));
        }
    }

    void spans(const excel::Range& cells) {
        const bool rows = below(2) == 0 && cells.Rows().Count() < 100;
        if (!rows && cells.Columns().Count() > 100) return;
        const excel::Range whole = rows ? cells.EntireRow() : cells.EntireColumn();
        switch (below(4)) {
            case 0:
                return whole.Hidden(below(2) == 0);
            case 1:
                return whole.OutlineLevel(static_cast<std::int32_t>(1 + below(4)));
            default:
                return rows ? whole.RowHeight(pick({9.0, 15.0, 30.75})) : whole.ColumnWidth(pick({3.0, 8.43, 20.0}));
        }
    }

    void condition(const excel::Range& cells) {
        const excel::FormatConditions conditions = cells.FormatConditions();
        if (below(3) == 0) return conditions.Delete();
        const bool expression = below(2) == 0;
        const excel::FormatCondition added =
            expression ? conditions.Add(2, automation::Missing{}, pick({"=A1>$B$2", "=ISBLANK(C3)"}))
                       : conditions.Add(1, pick({excel::xlGreater, excel::xlBetween}), "1", "=$A1");
        if (below(2) == 0) added.Font().Bold(true);
        if (below(2) == 0) added.Font().Color(255);
        if (below(2) == 0) added.Interior().Color(pick({65535, 0xCCCCCC}));
        if (below(4) == 0) added.Borders().LineStyle(excel::xlContinuous);
        if (below(4) == 0) added.StopIfTrue(true);
        if (below(4) == 0) added.Priority(1);
    }

    void content(const excel::Range& cells) {
        switch (below(9)) {
            case 0:
                return cells.Value2(Value());
            case 1:
                return cells.Value2(pick({"Sales", "'007", "5%", "true", "#N/A", "'=1+1", "'", "3/4/2020", "x\ny"}));
            case 2:
                return cells.FormulaR1C1(pick({"=RC[1]*2", "=R1C1&\"x\"", "=SUM('Other Sheet'!C)", "=#REF!+1"}));
            case 3:
                return cells.FormulaArray(pick({"=$A$1:$A$3*2", "=LEN(K1)"}));
            case 4:
                return cells.Value2(automation::Error{static_cast<std::int32_t>(0x800A07D7)});
            case 5:
                return cells.Value2(below(2) == 0);
            case 6:
                return cells.Value(automation::Date{40000.0 + below(100)});
            default:
                return cells.Value2(static_cast<double>(below(1000)) / 7);
        }
    }

    std::mt19937 random_;
};

}  // namespace kestrune::brxllib::undo
