#include "undo_histories/Edits.h"

#include <fmt/format.h>

#include "automation/ResumeNext.h"
#include "excel/Constants.h"
#include "excel/Workbook.h"
#include "formula/A1.h"
#include "undo_histories/Tell.h"

namespace kestrune::histories {
namespace {

using automation::call;
using automation::get;
using automation::ObjectRef;
using automation::put;
using automation::Value;

constexpr std::int32_t rows = 24;
constexpr std::int32_t columns = 9;

// Whole rows and columns count themselves, not their cells.
double cell_count(const excel::Range& cells) { return cells.Cells().CountLarge(); }

ObjectRef part(const excel::Range& cells, std::string_view member) {
    return automation::to_object(get(*cells.object(), member));
}

Value random_value(Dice& dice) {
    const Value values[] = {1,
                            -2.5,
                            1e10,
                            0.1,
                            "text",
                            "'007",
                            "'------",
                            "'",
                            true,
                            "=1+1",
                            "#N/A",
                            "1/2/2026",
                            "50%",
                            "long " + std::string(300, 'x'),
                            "a\nb",
                            "'=A1",
                            "$5",
                            Value(),
                            automation::Date{45000.25},
                            12345678901.0};
    return dice.one_of(values);
}

void enter_value(const excel::Range& cells, Dice& dice) { cells.Value(random_value(dice)); }
void enter_formula(const excel::Range& cells, Dice& dice) {
    constexpr const char* formulas[] = {"=SUM($A$1:B2)",
                                        "=R1*2",
                                        "='Inputs & Co'!C3+1",
                                        "=IF(A1>0,\"yes\",NA())",
                                        "=A1",
                                        "=TODAY()",
                                        "=HYPERLINK(\"http://x\",\"y\")",
                                        "=SUM(A:A)"};
    cells.Formula(dice.one_of(formulas));
}
void enter_array(const excel::Range& cells, Dice& dice) {
    constexpr const char* formulas[] = {"=A1:B2*2", "=TRANSPOSE(C1:D2)", "=ROW()"};
    if (cell_count(cells) > 60) return;
    put(*cells.Areas().Item(1).object(), "FormulaArray", dice.one_of(formulas));
}
void clear(const excel::Range& cells, Dice& dice) {
    constexpr const char* ways[] = {"Clear", "ClearContents", "ClearFormats"};
    call(*cells.object(), dice.one_of(ways));
}

void format_number(const excel::Range& cells, Dice& dice) {
    constexpr const char* codes[] = {"0.00", "#,##0_);(#,##0)", "@", "General", "m/d/yyyy", "[Red]0;-0;;@", "0.0%"};
    cells.NumberFormat(dice.one_of(codes));
}
void format_font(const excel::Range& cells, Dice& dice) {
    const ObjectRef font = part(cells, "Font");
    switch (dice.number(0, 11)) {
        case 0:
            return put(*font, "Bold", dice.chance(50));
        case 1:
            return put(*font, "Italic", dice.chance(50));
        case 2:
            return put(*font, "Strikethrough", dice.chance(50));
        case 3:
            return put(*font, "Superscript", dice.chance(50));
        case 4:
            return put(*font, "Subscript", dice.chance(50));
        case 5:
            return put(*font, "Underline", dice.one_of(std::initializer_list<std::int32_t>{2, 4, 5, -4142, -4119}));
        case 6:
            return put(*font, "Size", dice.one_of(std::initializer_list<double>{8, 10.5, 11, 24}));
        case 7:
            return put(*font, "Name", dice.one_of(std::initializer_list<const char*>{"Arial", "Courier New"}));
        case 8:
            return put(*font, "Color", dice.number(0, 0xFFFFFF));
        case 9:
            return put(*font, "ColorIndex", dice.one_of(std::initializer_list<std::int32_t>{-4105, 3, 5, 56}));
        case 10:
            return put(*font, "ThemeColor", dice.number(1, 10));
        default:
            return put(*font, "TintAndShade", dice.one_of(std::initializer_list<double>{0, 0.4, -0.25}));
    }
}
void format_fill(const excel::Range& cells, Dice& dice) {
    const ObjectRef fill = part(cells, "Interior");
    switch (dice.number(0, 6)) {
        case 0:
            return put(*fill, "Color", dice.number(0, 0xFFFFFF));
        case 1:
            return put(*fill, "ColorIndex", dice.one_of(std::initializer_list<std::int32_t>{-4142, 6, 15}));
        case 2:
            return put(*fill, "Pattern", dice.one_of(std::initializer_list<std::int32_t>{1, 17, -4128, -4142, 9}));
        case 3:
            return put(*fill, "PatternColor", dice.number(0, 0xFFFFFF));
        case 4:
            return put(*fill, "ThemeColor", dice.number(1, 10));
        case 5:
            return put(*fill, "PatternThemeColor", dice.number(1, 10));
        default:
            return put(*fill, "TintAndShade", dice.one_of(std::initializer_list<double>{0, 0.6, -0.5}));
    }
}
void format_alignment(const excel::Range& cells, Dice& dice) {
    automation::Object& range = *cells.object();
    switch (dice.number(0, 8)) {
        case 0:
            return put(range, "HorizontalAlignment",
                       dice.one_of(std::initializer_list<std::int32_t>{1, -4131, -4108, -4152, 5, 7, -4130}));
        case 1:
            return put(range, "VerticalAlignment",
                       dice.one_of(std::initializer_list<std::int32_t>{-4160, -4108, -4107, -4130}));
        case 2:
            return put(range, "Orientation",
                       dice.one_of(std::initializer_list<std::int32_t>{-4128, 45, -90, -4166, -4171}));
        case 3:
            return put(range, "IndentLevel", dice.number(0, 4));
        case 4:
            return put(range, "WrapText", dice.chance(50));
        case 5:
            return put(range, "ShrinkToFit", dice.chance(50));
        case 6:
            return put(range, "Locked", dice.chance(50));
        case 7:
            return put(range, "FormulaHidden", dice.chance(50));
        default:
            return put(range, "AddIndent", dice.chance(50));
    }
}
void format_border(const excel::Range& cells, Dice& dice) {
    // A line below whole columns makes a million rows used, which only takes time.
    const bool whole_columns = cell_count(cells) > formula::max_rows;
    const excel::Border line = cells.Borders(whole_columns ? excel::xlEdgeLeft : dice.number(5, 12));
    switch (dice.number(0, 3)) {
        case 0:
            return line.LineStyle(dice.one_of(std::initializer_list<std::int32_t>{1, -4115, 4, 5, -4118, -4119, 13}));
        case 1:
            return line.LineStyle(excel::xlNone);
        case 2:
            return line.Weight(dice.one_of(std::initializer_list<std::int32_t>{1, 2, -4138, 4}));
        default:
            return put(*line.object(), "Color", dice.number(0, 0xFFFFFF));
    }
}

void merge(const excel::Range& cells, Dice& dice) {
    if (cell_count(cells) > 40) return;
    if (dice.chance(40)) {
        call(*cells.object(), "UnMerge");
    } else {
        call(*cells.object(), "Merge", {dice.chance(30)});
    }
}

void add_condition(const excel::Range& cells, Dice& dice) {
    const ObjectRef list = part(cells, "FormatConditions");
    if (dice.chance(20)) {
        call(*list, "Delete");
        return;
    }
    const ObjectRef added = automation::to_object(
        dice.chance(50) ? call(*list, "Add", {excel::xlCellValue, dice.number(1, 8), "=1", "=9"})
                        : call(*list, "Add", {2, automation::Missing{}, "=$A1>" + std::to_string(dice.number(0, 9))}));
    const auto of = [&](std::string_view member) { return automation::to_object(get(*added, member)); };
    put(*of("Font"), "Color", dice.number(0, 0xFFFFFF));
    if (dice.chance(50)) put(*of("Interior"), "Color", dice.number(0, 0xFFFFFF));
    if (dice.chance(30)) put(*of("Font"), "Bold", true);
    if (dice.chance(30)) put(*added, "StopIfTrue", dice.chance(50));
    if (dice.chance(20)) call(*added, "SetFirstPriority");
}

// Of rows that lie in the cells wholly, unless they are only made higher: that is what Excel lets a selection do.
void change_rows(const excel::Range& cells, Dice& dice) {
    const ObjectRef lines = part(cells, "EntireRow");
    if (cell_count(cells) > 200000) return;
    switch (dice.number(0, 4)) {
        case 0:
            return put(*cells.object(), "RowHeight", dice.one_of(std::initializer_list<double>{6, 12.75, 15, 30}));
        case 1:
            return put(*lines, "Hidden", dice.chance(60));
        case 2:
            return put(*lines, "OutlineLevel", dice.number(1, 4));
        case 3:
            call(*lines, "Group");
            return;
        default:
            call(*lines, "Ungroup");
            return;
    }
}
void change_columns(const excel::Range& cells, Dice& dice) {
    const ObjectRef lines = part(cells, "EntireColumn");
    // All columns are all rows too, which the cells may not be.
    if (excel::Range(lines).Columns().Count() == formula::max_columns) return;
    switch (dice.number(0, 4)) {
        case 0:
            return put(*cells.object(), "ColumnWidth", dice.one_of(std::initializer_list<double>{0.5, 8.43, 20, 3}));
        case 1:
            return put(*lines, "Hidden", dice.chance(60));
        case 2:
            return put(*lines, "OutlineLevel", dice.number(1, 4));
        case 3:
            call(*lines, "Group");
            return;
        default:
            call(*lines, "Ungroup");
            return;
    }
}

void change_names(const excel::Range& cells, Dice& dice) {
    const excel::Workbook book = cells.Worksheet().Parent();
    const std::string name = fmt::format("name_{}", dice.number(1, 5));
    const ObjectRef names = book.Names().object();
    switch (dice.number(0, 2)) {
        case 0:
            call(*names, "Add", {name, "='Inputs & Co'!$A$" + std::to_string(dice.number(1, 9))});
            return;
        case 1: {
            const ObjectRef item = automation::to_object(call(*names, "Item", {name}));
            put(*item, "Visible", dice.chance(50));
            return;
        }
        default:
            call(*automation::to_object(call(*names, "Item", {name})), "Delete");
            return;
    }
}

struct Edit {
    const char* name;
    void (*make)(const excel::Range& cells, Dice& dice);
};
constexpr Edit edits[] = {
    {"value", enter_value}, {"value", enter_value},           {"formula", enter_formula}, {"array", enter_array},
    {"clear", clear},       {"number format", format_number}, {"font", format_font},      {"font", format_font},
    {"fill", format_fill},  {"alignment", format_alignment},  {"border", format_border},  {"border", format_border},
    {"merge", merge},       {"condition", add_condition},     {"rows", change_rows},      {"columns", change_columns},
    {"name", change_names},
};

formula::Area random_block(Dice& dice) {
    const std::int32_t row = dice.number(1, rows), column = dice.number(1, columns);
    return {row, column, std::min(rows, row + dice.number(0, dice.chance(20) ? 12 : 3)),
            std::min(columns, column + dice.number(0, dice.chance(20) ? 8 : 3))};
}

}  // namespace

excel::Range random_cells(const excel::Application& application, Dice& dice) {
    const excel::Worksheet sheet = application.ActiveWorkbook().Worksheets().Item(dice.number(1, 2));
    const formula::Area block = random_block(dice);
    const std::int32_t kind = dice.number(1, 100);
    if (kind <= 20) return sheet.Range(formula::area_text(formula::Area::cell(block.top_left())));
    if (kind <= 65) return sheet.Range(formula::area_text(block));
    if (kind <= 80) {
        std::string areas = formula::area_text(block);
        for (int more = dice.number(1, 2); more > 0; --more) areas += "," + formula::area_text(random_block(dice));
        return sheet.Range(areas);
    }
    if (kind <= 89) return sheet.Range(formula::area_text(block)).EntireColumn();
    if (kind <= 98) return sheet.Range(formula::area_text(block)).EntireRow();
    return sheet.Cells();
}

void edit(const excel::Range& cells, Dice& dice) {
    const automation::Trace nobody;
    const automation::ResumeNext attempt(nobody);
    const Edit& one = dice.one_of(edits);
    tell("    {} of {}", one.name, cells.Address());
    // A million values would only be slow.
    const bool fills = one.make == enter_value || one.make == enter_formula;
    if (fills && cell_count(cells) > 500) return;
    attempt([&] { one.make(cells, dice); });
}

}  // namespace kestrune::histories
