#include "host_objects/HostFixture.h"

namespace kestrune::host {
namespace {

class ApplicationTest : public HostTest {};

TEST_F(ApplicationTest, AnswersWhatIsActive) {
    EXPECT_EQ(get(application, "Name"), Value("Microsoft Excel"));
    EXPECT_EQ(get(application, "Version"), Value("16.0"));
    EXPECT_EQ(get(object(application, "ActiveWorkbook"), "FullName"), Value("/models/Model.xlsx"));
    EXPECT_EQ(get(object(application, "ActiveSheet"), "Name"), Value("Inputs"));
    EXPECT_EQ(address(object(application, "Selection")), "$A$1");
    call(range("B2:C3,E5"), "Select");
    EXPECT_EQ(address(object(application, "Selection")), "$B$2:$C$3,$E$5");
    EXPECT_EQ(address(object(application, "ActiveCell")), "$B$2");
    call(range("C3"), "Activate");
    EXPECT_EQ(address(object(application, "ActiveCell")), "$C$3") << "inside the selection only the active cell moves";
    EXPECT_EQ(address(object(application, "Selection")), "$B$2:$C$3,$E$5");
}

TEST_F(ApplicationTest, WithoutAWorkbookNothingIsActive) {
    HostSession empty;
    const ObjectRef lonely = make_application(empty);
    for (const char* member : {"ActiveWorkbook", "ActiveSheet", "ActiveWindow", "ActiveCell", "Selection"}) {
        EXPECT_EQ(object(lonely, member), nullptr) << member;
    }
    EXPECT_EQ(call_refused(lonely, "Range", {"A1"}), error_1004);
    EXPECT_EQ(get(object(lonely, "Workbooks"), "Count"), Value(0));
}

TEST_F(ApplicationTest, CountsCallsFromOutsideOnly) {
    const ObjectRef cell = range("A1");
    const auto before = session.calls();
    put(cell, "Value", 5);
    EXPECT_EQ(session.calls(), before + 1);
    border(cell, 7);  // passes through the default member of Borders
    EXPECT_EQ(session.calls(), before + 2);
    EXPECT_EQ(refused(cell, "Nonsense", 1), automation::hresult::unknown_name);
    EXPECT_EQ(session.calls(), before + 3);
}

TEST_F(ApplicationTest, MovesOnlyANormalWindow) {
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

TEST_F(ApplicationTest, KeepsItsModes) {
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

TEST_F(ApplicationTest, UnitesAndIntersectsRanges) {
    const struct {
        const char *first, *second, *together, *common;
    } cases[] = {
        {"A1", "A2", "$A$1:$A$2", nullptr},    {"A1:B2", "B2:C3", "$A$1:$B$2,$B$2:$C$3", "$B$2"},
        {"A1:C3", "B2", "$A$1:$C$3", "$B$2"},  {"A:A", "1:1", "$A:$A,$1:$1", "$A$1"},
        {"A1,C1", "B1", "$A$1:$C$1", nullptr},
    };
    for (const auto& [first, second, together, common] : cases) {
        EXPECT_EQ(address(automation::to_object(call(application, "Union", {range(first), range(second)}))), together);
        const ObjectRef both = automation::to_object(call(application, "Intersect", {range(first), range(second)}));
        EXPECT_EQ(both ? address(both) : "", common ? common : "");
    }
    EXPECT_EQ(call_refused(application, "Union", {range("A1"), object(sheet("It's Output"), "Range", {"A1"})}),
              error_1004);
}

TEST_F(ApplicationTest, GoesToCellsOnAnySheet) {
    call(application, "Goto", {object(sheet("It's Output"), "Range", {"C4"})});
    EXPECT_EQ(get(object(application, "ActiveSheet"), "Name"), Value("It's Output"));
    EXPECT_EQ(address(object(application, "Selection")), "$C$4");
    EXPECT_EQ(call_refused(range("A1"), "Select"), error_1004) << "another sheet is active";
}

TEST_F(ApplicationTest, TheWindowLooksAtItsActiveSheet) {
    const ObjectRef window = object(application, "ActiveWindow");
    for (const int zoom : {10, 400, 85}) {
        put(window, "Zoom", zoom);
        EXPECT_EQ(get(window, "Zoom"), Value(zoom));
    }
    for (const int zoom : {9, 401, -1}) EXPECT_EQ(refused(window, "Zoom", zoom), error_1004);
    put(window, "DisplayGridlines", false);
    EXPECT_FALSE(inputs_sheet->view().show_gridlines);
    EXPECT_TRUE(inputs_sheet->view().changed);
    call(sheet("It's Output"), "Activate");
    EXPECT_EQ(get(window, "Zoom"), Value(100));
    EXPECT_EQ(get(window, "DisplayGridlines"), Value(true));
}

TEST_F(ApplicationTest, FindsSheetsByNameAndPosition) {
    const ObjectRef sheets = object(application, "Sheets");
    EXPECT_EQ(get(sheets, "Count"), Value(2));
    EXPECT_EQ(get(object(sheets, "Item", {2}), "Name"), Value("It's Output"));
    EXPECT_EQ(get(object(sheets, "Item", {"inputs"}), "Index"), Value(1));
    EXPECT_EQ(call_refused(sheets, "Item", {3}), automation::hresult::bad_index);
    EXPECT_EQ(call_refused(sheets, "Item", {"Nowhere"}), automation::hresult::bad_index);
    EXPECT_EQ(get(object(sheet("Inputs"), "Next"), "Name"), Value("It's Output"));
    EXPECT_EQ(object(sheet("Inputs"), "Previous"), nullptr);
}

TEST_F(ApplicationTest, KeepsOneSheetVisible) {
    put(sheet("Inputs"), "Visible", xlSheetHidden);
    EXPECT_EQ(get(object(application, "ActiveSheet"), "Name"), Value("It's Output"));
    EXPECT_EQ(refused(sheet("It's Output"), "Visible", xlSheetVeryHidden), error_1004);
    EXPECT_EQ(call_refused(sheet("Inputs"), "Activate"), error_1004);
}

TEST_F(ApplicationTest, ReadsAndWritesThePalette) {
    const ObjectRef book = object(application, "ActiveWorkbook");
    const std::pair<int, double> defaults[] = {{1, 0},      {3, 255},       {5, 16711680},
                                               {10, 32768}, {17, 16751001}, {56, 3355443}};
    for (const auto& [index, color] : defaults) EXPECT_EQ(get(book, "Colors", {index}), Value(color)) << index;
    Arguments change{3, 0x123456};
    book->invoke("Colors", automation::Call::Put, change);
    EXPECT_EQ(get(book, "Colors", {3}), Value(double{0x123456}));
    EXPECT_EQ(get(book, "Colors").array()->at(3), Value(double{0x123456}));
    for (const int index : {0, 57, xlAutomatic}) EXPECT_EQ(call_refused(book, "Colors", {index}), error_1004);
    EXPECT_EQ(get(book, "Saved"), Value(false));
}

}  // namespace
}  // namespace kestrune::host
