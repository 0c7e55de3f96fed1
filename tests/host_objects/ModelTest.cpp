#include <chrono>
#include <limits>

#include "host_objects/HostFixture.h"

namespace kestrune::host {
namespace {

// What only the model beneath the objects shows, or what a workbook from a file brings; how the objects behave towards
// their callers is tested in tests/contract.
class ModelTest : public HostTest {};

TEST_F(ModelTest, WritesMarkTheWorkbook) {
    put(range("A1"), "Formula", "=1+1");
    EXPECT_TRUE(workbook->recalculate_on_load);
    put(object(application, "ActiveWindow"), "DisplayGridlines", false);
    EXPECT_FALSE(inputs_sheet->view().show_gridlines);
    EXPECT_TRUE(inputs_sheet->view().changed);
    EXPECT_EQ(get(object(application, "ActiveWorkbook"), "FullName"), Value("/models/Model.xlsx"));
}

TEST_F(ModelTest, DatesCountFromTheWorkbooksFirstDay) {
    workbook->date1904 = true;
    put(range("B1"), "Value", automation::Date{45322});
    EXPECT_EQ(get(range("B1"), "Value2"), Value(45322.0 - 1462));
    EXPECT_EQ(get(range("B1"), "Value"), Value(automation::Date{45322}));
}

TEST_F(ModelTest, SheetsWithOddNamesAreQuoted) {
    EXPECT_EQ(get(object(sheet("It's Output"), "Range", {"A1"}), "Address", Arguments{}.name("External", true)),
              Value("'[Model.xlsx]It''s Output'!$A$1"));
    const ObjectRef names = object(sheet("It's Output"), "Names");
    call(names, "Add", {"Local", "='It''s Output'!$E$5"});
    EXPECT_EQ(get(automation::to_object(call(names, "Item", {"'It''s Output'!Local"})), "RefersTo"),
              Value("='It''s Output'!$E$5"));
}

TEST_F(ModelTest, SummaryLinesCarryTheMarkOfFoldedGroups) {
    put(range("2:6"), "OutlineLevel", 2);
    put(range("3:4"), "OutlineLevel", 3);
    const ObjectRef outline = object(sheet("Inputs"), "Outline");
    call(outline, "ShowLevels", {1});
    EXPECT_TRUE(inputs_sheet->row_format(7)->collapsed);
    call(outline, "ShowLevels", {2});
    EXPECT_TRUE(inputs_sheet->row_format(5)->collapsed);
    put(outline, "SummaryRow", xlSummaryAbove);
    EXPECT_FALSE(inputs_sheet->defaults().summary_below);
}

TEST_F(ModelTest, FilesKeepTheirProtectionAndSheets) {
    EXPECT_EQ(call_refused(sheet("Inputs"), "Protect"), error_1004) << "no protection is written into a file";
    EXPECT_EQ(call_refused(object(application, "Worksheets"), "Add"), error_1004);
    inputs_sheet->protection().on = true;
    EXPECT_EQ(call_refused(sheet("Inputs"), "Unprotect"), error_1004);
    EXPECT_EQ(get(sheet("Inputs"), "ProtectContents"), Value(true));
}

TEST_F(ModelTest, CountsCallsFromOutsideOnly) {
    const ObjectRef cell = range("A1");
    const auto before = session.calls();
    put(cell, "Value", 5);
    EXPECT_EQ(session.calls(), before + 1);
    border(cell, 7);  // passes through the default member of Borders
    EXPECT_EQ(session.calls(), before + 2);
    EXPECT_EQ(refused(cell, "Nonsense", 1), automation::hresult::unknown_name);
    EXPECT_EQ(session.calls(), before + 3);
}

TEST_F(ModelTest, ACellByCellGridLeavesEverySideDrawn) {
    for (const char* cell : {"B2", "C2", "B3", "C3"}) {
        for (const std::int32_t edge : {xlEdgeLeft, xlEdgeTop, xlEdgeBottom, xlEdgeRight})
            put(border(range(cell), edge), "LineStyle", xlContinuous);
    }
    const Border& first = workbook->styles.border_of(inputs_sheet->style_at({2, 2}));
    EXPECT_EQ(first.right.style, LineStyle::Thin) << "programs that look at one cell alone see its right side too";
    EXPECT_EQ(get(border(range("B2:C3"), xlInsideVertical), "LineStyle"), Value(xlContinuous));
}

TEST_F(ModelTest, WholeColumnsCostNothing) {
    put(range("A1:A1000"), "Value", 1);
    const auto start = std::chrono::steady_clock::now();
    for (const char* cells : {"A:C", "5:9", "A:XFD", "B2:XFD1048576"}) {
        put(font(range(cells)), "Bold", true);
        EXPECT_EQ(get(font(range(cells)), "Bold"), Value(true));
        put(border(range(cells), xlInsideVertical), "LineStyle", xlContinuous);
        put(range(cells), "NumberFormat", "0.00");
        EXPECT_EQ(get(range(cells), "NumberFormat"), Value("0.00"));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_LT(inputs_sheet->stored_cells(), 5000);
    EXPECT_EQ(get(font(range("XFD1048576")), "Bold"), Value(true));
}

TEST_F(ModelTest, BuiltInNamesLoseTheirPrefix) {
    workbook->names.push_back({"_xlnm.Print_Area", "Inputs!$A$1:$B$2", 0, false, "", ""});
    EXPECT_EQ(get(automation::to_object(call(object(application, "Names"), "Item", {1})), "Name"),
              Value("Inputs!Print_Area"));
    EXPECT_EQ(address(range("Print_Area")), "$A$1:$B$2");
}

}  // namespace
}  // namespace kestrune::host
