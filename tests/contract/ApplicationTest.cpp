#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Sure, ApplicationAnswersWhatIsActive) {
    EXPECT_EQ(get(application, "Name"), Value("Microsoft Excel"));
    EXPECT_EQ(get(application, "Version"), Value("16.0"));
    EXPECT_EQ(get(object(application, "ActiveWorkbook"), "Name"), Value("Book1"));
    EXPECT_EQ(get(object(application, "ActiveSheet"), "Name"), Value("Sheet1"));
    EXPECT_EQ(address(object(application, "Selection")), "$A$1");
    call(range("B2:C3,E5"), "Select");
    EXPECT_EQ(address(object(application, "Selection")), "$B$2:$C$3,$E$5");
    EXPECT_EQ(address(object(application, "ActiveCell")), "$B$2");
    call(range("C3"), "Activate");
    EXPECT_EQ(address(object(application, "ActiveCell")), "$C$3") << "inside the selection only the active cell moves";
    EXPECT_EQ(address(object(application, "Selection")), "$B$2:$C$3,$E$5");
}

TEST_F(Likely, WindowMovesOnlyWhenNormal) {
    EXPECT_EQ(number(application, "Width"), 1440);
    EXPECT_EQ(number(application, "Height"), 810);
    EXPECT_EQ(refused(application, "Width", 500), error_1004) << "the window is maximised";
    put(application, "WindowState", xlNormal);
    put(application, "Width", 500);
    put(application, "Top", 12.5);
    EXPECT_EQ(number(application, "Width"), 500);
    EXPECT_EQ(number(application, "Top"), 12.5);
    EXPECT_EQ(refused(application, "Height", -1), error_1004);
    EXPECT_EQ(refused(application, "WindowState", 7), error_1004);
    put(application, "WindowState", xlMaximized);
    EXPECT_EQ(number(application, "Width"), 1440);
}

TEST_F(Sure, ApplicationKeepsItsModes) {
    put(application, "Calculation", xlCalculationManual);
    EXPECT_EQ(get(application, "Calculation"), Value(xlCalculationManual));
    EXPECT_EQ(refused(application, "Calculation", 3), error_1004);
    put(application, "StatusBar", "Working");
    EXPECT_EQ(get(application, "StatusBar"), Value("Working"));
    put(application, "StatusBar", false);
    EXPECT_EQ(get(application, "StatusBar"), Value(false));
    put(application, "ScreenUpdating", false);
    EXPECT_EQ(get(application, "ScreenUpdating"), Value(false));
}

TEST_F(Sure, ApplicationUnitesAndIntersectsRanges) {
    const struct {
        const char *first, *second, *together, *common;
    } cases[] = {
        {"A1", "A2", "$A$1:$A$2", nullptr},    {"A1:B2", "B2:C3", "$A$1:$B$2,$B$2:$C$3", "$B$2"},
        {"A1:C3", "B2", "$A$1:$C$3", "$B$2"},  {"A:A", "1:1", "$A:$A,$1:$1", "$A$1"},
        {"A1,C1", "B1", "$A$1:$C$1", nullptr},
    };
    for (const auto& [first, second, together, common] : cases) {
        EXPECT_EQ(address(to_object(call(application, "Union", {range(first), range(second)}))), together);
        const ObjectRef both = to_object(call(application, "Intersect", {range(first), range(second)}));
        EXPECT_EQ(both ? address(both) : "", common ? common : "");
    }
    EXPECT_EQ(call_refused(application, "Union", {range("A1"), object(sheet("Sheet2"), "Range", {"A1"})}), error_1004);
}

TEST_F(Sure, ApplicationGoesToCellsOnAnySheet) {
    call(application, "Goto", {object(sheet("Sheet2"), "Range", {"C4"})});
    EXPECT_EQ(get(object(application, "ActiveSheet"), "Name"), Value("Sheet2"));
    EXPECT_EQ(address(object(application, "Selection")), "$C$4");
    EXPECT_EQ(call_refused(range("A1"), "Select"), error_1004) << "another sheet is active";
}

TEST_F(Sure, WindowLooksAtItsActiveSheet) {
    const ObjectRef window = object(application, "ActiveWindow");
    for (const int zoom : {10, 400, 85}) {
        put(window, "Zoom", zoom);
        EXPECT_EQ(get(window, "Zoom"), Value(zoom));
    }
    for (const int zoom : {9, 401, -1}) EXPECT_EQ(refused(window, "Zoom", zoom), error_1004);
    put(window, "DisplayGridlines", false);
    EXPECT_EQ(get(window, "DisplayGridlines"), Value(false));
    call(sheet("Sheet2"), "Activate");
    EXPECT_EQ(get(window, "Zoom"), Value(100));
    EXPECT_EQ(get(window, "DisplayGridlines"), Value(true));
}

TEST_F(Sure, SheetsAreFoundByNameAndPosition) {
    const ObjectRef sheets = object(application, "Sheets");
    EXPECT_EQ(get(sheets, "Count"), Value(2));
    EXPECT_EQ(get(object(sheets, "Item", {2}), "Name"), Value("Sheet2"));
    EXPECT_EQ(get(object(sheets, "Item", {"sheet1"}), "Index"), Value(1));
    EXPECT_EQ(call_refused(sheets, "Item", {3}), hresult::bad_index);
    EXPECT_EQ(call_refused(sheets, "Item", {"Nowhere"}), hresult::bad_index);
    EXPECT_EQ(get(object(sheet("Sheet1"), "Next"), "Name"), Value("Sheet2"));
    EXPECT_EQ(object(sheet("Sheet1"), "Previous"), nullptr);
}

TEST_F(Sure, SheetsKeepOneVisible) {
    put(sheet("Sheet1"), "Visible", xlSheetHidden);
    EXPECT_EQ(get(object(application, "ActiveSheet"), "Name"), Value("Sheet2"));
    EXPECT_EQ(refused(sheet("Sheet2"), "Visible", xlSheetVeryHidden), error_1004);
    EXPECT_EQ(call_refused(sheet("Sheet1"), "Activate"), error_1004);
}

TEST_F(Sure, ApplicationWithoutAWorkbookHasNothingActive) {
    const ObjectRef lonely = new_excel();
    for (const char* member : {"ActiveWorkbook", "ActiveSheet", "ActiveWindow", "ActiveCell", "Selection"}) {
        EXPECT_EQ(object(lonely, member), nullptr) << member;
    }
    EXPECT_EQ(call_refused(lonely, "Range", {"A1"}), error_1004);
    EXPECT_EQ(get(object(lonely, "Workbooks"), "Count"), Value(0));
}

}  // namespace
}  // namespace kestrune::contract
