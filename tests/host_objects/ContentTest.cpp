#include "host_objects/HostFixture.h"

namespace kestrune::host {
namespace {

class ContentTest : public HostTest {};

constexpr std::int32_t not_available = static_cast<std::int32_t>(0x800A0000 + 2042);

TEST_F(ContentTest, ReadsEnteredTextsAsExcelDoes) {
    const struct {
        const char* entered;
        Value value;
        const char* format;
    } cases[] = {
        {"12", 12.0, "General"},
        {" -1,234.5 ", -1234.5, "#,##0.00"},
        {"(5)", -5.0, "General"},
        {"1,234", 1234.0, "#,##0"},
        {"1,23", "1,23", "General"},
        {"$1,234.50", 1234.5, "$#,##0.00_);[Red]($#,##0.00)"},
        {"-$7", -7.0, "$#,##0_);[Red]($#,##0)"},
        {"5%", 0.05, "0%"},
        {"12.5%", 0.125, "0.00%"},
        {"1E3", 1000.0, "0.00E+00"},
        {"1 1/2", 1.5, "# ?/?"},
        {"1.2.3", "1.2.3", "General"},
        {"1/31/2024", automation::Date{45322}, "m/d/yyyy"},
        {"2024-01-31", automation::Date{45322}, "m/d/yyyy"},
        {"31-Jan-24", automation::Date{45322}, "d-mmm-yy"},
        {"January 31, 2024", automation::Date{45322}, "d-mmm-yy"},
        {"Jan-2024", automation::Date{45292}, "mmm-yy"},
        {"2/30/2024", "2/30/2024", "General"},
        {"6:00 PM", automation::Date{0.75}, "h:mm AM/PM"},
        {"1/31/2024 12:00", automation::Date{45322.5}, "m/d/yyyy h:mm"},
        {"13:75", "13:75", "General"},
        {"true", true, "General"},
        {"#n/a", automation::Error{not_available}, "General"},
        {"plain", "plain", "General"},
        {"- item", "- item", "General"},
        {"=", "=", "General"},
    };
    for (const auto& [entered, value, format] : cases) {
        const ObjectRef cell = range("B2");
        call(cell, "Clear");
        put(cell, "Value", entered);
        EXPECT_EQ(get(cell, "Value"), value) << entered;
        EXPECT_EQ(get(cell, "NumberFormat"), Value(format)) << entered;
    }
}

TEST_F(ContentTest, KeepsAFormatThatIsThere) {
    put(range("A1"), "NumberFormat", "0.0");
    put(range("A1"), "Value", "5%");
    EXPECT_EQ(get(range("A1"), "NumberFormat"), Value("0.0"));
    put(range("A2"), "NumberFormat", "@");
    put(range("A2"), "Formula", "=1+1");
    EXPECT_EQ(get(range("A2"), "Value"), Value("=1+1"));
    put(range("A2"), "Value", 12);
    EXPECT_EQ(get(range("A2"), "Value"), Value("12"));
}

TEST_F(ContentTest, AnApostropheKeepsText) {
    const ObjectRef cell = range("A1");
    put(cell, "Value", "'------");
    EXPECT_EQ(get(cell, "Value"), Value("------"));
    EXPECT_EQ(get(cell, "Formula"), Value("------"));
    EXPECT_EQ(get(cell, "PrefixCharacter"), Value("'"));
    put(cell, "Formula", "'=A1");
    EXPECT_EQ(get(cell, "Formula"), Value("=A1"));
    EXPECT_EQ(get(cell, "HasFormula"), Value(false));
    put(cell, "Value", 7);
    EXPECT_EQ(get(cell, "PrefixCharacter"), Value("")) << "the prefix goes with the text";
    put(cell, "Formula", "");
    EXPECT_EQ(get(cell, "Value"), Value());
}

TEST_F(ContentTest, FormulasAdjustAsAFillDoes) {
    put(range("B2:C3"), "Formula", "=sum($a1,D$5)*2");
    EXPECT_EQ(get(range("B2:C3"), "Formula"),
              block({{"=SUM($A1,D$5)*2", "=SUM($A1,E$5)*2"}, {"=SUM($A2,D$5)*2", "=SUM($A2,E$5)*2"}}));
    EXPECT_EQ(get(range("C3"), "FormulaR1C1"), Value("=SUM(R[-1]C1,R5C[2])*2"));
    put(range("B2:B3"), "FormulaR1C1", "=R[-1]C+1");
    EXPECT_EQ(get(range("B2:B3"), "Formula"), block({{"=B1+1"}, {"=B2+1"}}));
    put(range("E1,G4"), "Formula", "=F1");
    EXPECT_EQ(get(range("G4"), "Formula"), Value("=H4"));
    put(range("A10:B10"), "Formula", block({{"=A1", "=A1"}}));
    EXPECT_EQ(get(range("A10:B10"), "Formula"), block({{"=A1", "=A1"}})) << "an array is taken cell by cell";
    EXPECT_TRUE(workbook->recalculate_on_load);
}

TEST_F(ContentTest, ABadFormulaChangesNothing) {
    put(range("A1:B1"), "Value", block({{1, 2}}));
    for (const char* formula : {"=1+", "=SUM(1", "=A1:", "=\"open"}) {
        EXPECT_EQ(refused(range("A1:B1"), "Formula", formula), error_1004) << formula;
    }
    EXPECT_EQ(refused(range("A1:B1"), "Value", block({{5, "=)"}})), error_1004);
    EXPECT_EQ(get(range("A1:B1"), "Value"), block({{1.0, 2.0}}));
}

TEST_F(ContentTest, BlocksFillAndRepeat) {
    put(range("A1:C2"), "Value", block({{1, "x", true}}));
    EXPECT_EQ(get(range("A1:C2"), "Value"), block({{1.0, "x", true}, {1.0, "x", true}}));
    put(range("A1:C2"), "Value", block({{1, 2}, {3, 4}}));
    EXPECT_EQ(get(range("A1:C2"), "Value"),
              block({{1.0, 2.0, automation::Error{not_available}}, {3.0, 4.0, automation::Error{not_available}}}));
    automation::Array flat({0, 2});
    flat.elements() = {"a", Value()};
    put(range("A1:B1"), "Value", flat);
    EXPECT_EQ(get(range("A1:B1"), "Value"), block({{"a", Value()}}));
    put(range("A5:B5"), "Value", range("A2:B2"));
    EXPECT_EQ(get(range("A5:B5"), "Value"), block({{3.0, 4.0}}));
}

TEST_F(ContentTest, ValuesHaveTheirTypes) {
    put(range("A1"), "Value", automation::Date{45322.25});
    EXPECT_EQ(get(range("A1"), "NumberFormat"), Value("m/d/yyyy h:mm"));
    EXPECT_EQ(get(range("A1"), "Value"), Value(automation::Date{45322.25}));
    EXPECT_EQ(get(range("A1"), "Value2"), Value(45322.25));
    EXPECT_EQ(get(range("A1"), "Formula"), Value("45322.25"));
    put(range("A2"), "Value", -4);
    put(range("A2"), "NumberFormat", "m/d/yyyy");
    EXPECT_EQ(get(range("A2"), "Value"), Value(-4.0)) << "no day has this number";
    put(range("A3"), "Value", 1234.5);
    put(range("A3"), "NumberFormat", "$#,##0.00");
    EXPECT_EQ(get(range("A3"), "Value"), Value(1234.5));
    EXPECT_EQ(get(range("A3"), "Text"), Value("$1,234.50"));
    EXPECT_EQ(get(range("A2:A3"), "Text"), Value(Null{}));
    EXPECT_EQ(refused(range("A1"), "Value", std::numeric_limits<double>::infinity()), error_1004);

    workbook->date1904 = true;
    put(range("B1"), "Value", automation::Date{45322});
    EXPECT_EQ(get(range("B1"), "Value2"), Value(45322.0 - 1462));
    EXPECT_EQ(get(range("B1"), "Value"), Value(automation::Date{45322}));
}

TEST_F(ContentTest, HasFormulaIsNullWhenMixed) {
    put(range("A1:A3"), "Formula", "=B1");
    EXPECT_EQ(get(range("A1:A3"), "HasFormula"), Value(true));
    EXPECT_EQ(get(range("A1:A4"), "HasFormula"), Value(Null{}));
    EXPECT_EQ(get(range("C:C"), "HasFormula"), Value(false));
    EXPECT_EQ(get(range("A1,C1"), "HasFormula"), Value(Null{}));
}

TEST_F(ContentTest, ArrayFormulasChangeAsAWhole) {
    put(range("B2:C3"), "FormulaArray", "=A1:B2*2");
    EXPECT_EQ(get(range("C3"), "HasArray"), Value(true));
    EXPECT_EQ(get(range("C3"), "Formula"), Value("=A1:B2*2"));
    EXPECT_EQ(get(range("B2:C3"), "HasFormula"), Value(true));
    EXPECT_EQ(get(range("B2:C3"), "FormulaArray"), Value("=A1:B2*2"));
    EXPECT_EQ(address(object(range("C3"), "CurrentArray")), "$B$2:$C$3");
    EXPECT_EQ(refused(range("C3"), "Value", 1), error_1004);
    EXPECT_EQ(call_refused(range("A1:B2"), "ClearContents"), error_1004);
    EXPECT_EQ(get(range("A1:C3"), "HasArray"), Value(Null{}));
    put(range("A1:D4"), "Value", 5);
    EXPECT_EQ(get(range("C3"), "Value"), Value(5.0));
    EXPECT_EQ(get(range("B2:C3"), "HasArray"), Value(false));
}

TEST_F(ContentTest, ClearsContentsAndFormats) {
    put(range("A1:B2"), "Value", 5);
    put(interior(range("A1:B2")), "ColorIndex", 6);
    call(range("A1"), "ClearContents");
    EXPECT_EQ(get(range("A1"), "Value"), Value());
    EXPECT_EQ(get(interior(range("A1")), "ColorIndex"), Value(6));
    call(range("B2"), "ClearFormats");
    EXPECT_EQ(get(range("B2"), "Value"), Value(5.0));
    EXPECT_EQ(get(interior(range("B2")), "ColorIndex"), Value(xlNone));
    call(range("A:A"), "Clear");
    EXPECT_EQ(get(interior(range("A1")), "ColorIndex"), Value(xlNone));
}

TEST_F(ContentTest, MergedCellsHoldTheirFirstContent) {
    put(range("B1"), "Value", "kept");
    put(range("C2"), "Value", "lost");
    call(range("A1:C2"), "Merge");
    EXPECT_EQ(get(range("A1"), "Value"), Value("kept")) << "the first filled cell moves to the corner";
    EXPECT_EQ(get(range("C2"), "Value"), Value());
    EXPECT_EQ(get(range("B2"), "MergeCells"), Value(true));
    EXPECT_EQ(get(range("A1:C3"), "MergeCells"), Value(Null{}));
    EXPECT_EQ(get(range("A5"), "MergeCells"), Value(false));
    EXPECT_EQ(address(object(range("B2"), "MergeArea")), "$A$1:$C$2");
    EXPECT_EQ(call_refused(range("A1:D9"), "MergeArea"), error_1004);
    put(range("A1:C1"), "Value", block({{"a", "b", "c"}}));
    EXPECT_EQ(get(range("A1:C1"), "Value"), block({{"a", Value(), Value()}}));
    EXPECT_EQ(call_refused(range("A1"), "ClearContents"), error_1004);
    call(range("B1"), "Select");
    EXPECT_EQ(address(object(application, "Selection")), "$A$1:$C$2");
    put(range("C2"), "MergeCells", false);
    EXPECT_EQ(get(range("A1:C2"), "MergeCells"), Value(false));
    call(range("A1:B3"), "Merge", {true});
    EXPECT_EQ(address(object(range("B3"), "MergeArea")), "$A$3:$B$3");
}

TEST_F(ContentTest, AProtectedSheetKeepsItsLockedCells) {
    put(range("A1"), "Value", 1);
    put(range("B1"), "Locked", false);
    inputs_sheet->protection().on = true;
    EXPECT_EQ(refused(range("A1"), "Value", 2), error_1004);
    EXPECT_EQ(refused(range("A1:B1"), "Formula", "=1"), error_1004);
    EXPECT_EQ(call_refused(range("A1"), "ClearContents"), error_1004);
    EXPECT_EQ(refused(range("B1"), "Value", 2), ok);
    EXPECT_EQ(get(range("A1:B1"), "Value"), block({{1.0, 2.0}}));
    EXPECT_EQ(refused(range("B1"), "NumberFormat", "0.0"), ok) << "the cell is not locked";
    EXPECT_EQ(refused(range("A1:B1"), "NumberFormat", "0.00"), error_1004);
    const auto format_everything = [&] {
        std::vector<automation::HResult> codes{
            refused(range("A1"), "NumberFormat", "0.00"), refused(font(range("A1")), "Bold", true),
            refused(interior(range("A1")), "ColorIndex", 3), refused(border(range("A1"), 8), "LineStyle", 1),
            refused(range("A1"), "HorizontalAlignment", -4108)};
        return codes;
    };
    EXPECT_EQ(format_everything(), std::vector<automation::HResult>(5, error_1004));
    EXPECT_EQ(refused(range("B1"), "NumberFormat", "0.00"), ok);
    EXPECT_EQ(refused(range("A1"), "RowHeight", 20), error_1004);
    EXPECT_EQ(refused(range("A1"), "MergeCells", true), error_1004);
    EXPECT_EQ(get(range("A1"), "NumberFormat"), Value("General"));
    inputs_sheet->protection().format_cells = true;
    EXPECT_EQ(format_everything(), std::vector<automation::HResult>(5, ok));
    EXPECT_EQ(refused(range("A1"), "Locked", false), error_1004);
    EXPECT_EQ(refused(range("A1"), "ColumnWidth", 20), error_1004);
}

}  // namespace
}  // namespace kestrune::host
