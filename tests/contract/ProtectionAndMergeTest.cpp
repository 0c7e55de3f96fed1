#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Sure, MergedCellsHoldTheirFirstContent) {
    put(range("A1"), "Value", "kept");
    put(range("C2"), "Value", "lost");
    call(range("A1:C2"), "Merge");
    EXPECT_EQ(get(range("A1"), "Value"), Value("kept"));
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

TEST_F(Likely, MergingMovesTheFirstFilledCellToTheCorner) {
    put(range("B1"), "Value", "kept");
    put(range("A2"), "Value", "lost");
    call(range("A1:C2"), "Merge");
    EXPECT_EQ(get(range("A1"), "Value"), Value("kept"));
    call(range("A1"), "UnMerge");
    EXPECT_EQ(get(range("A1:B2"), "Value"), block({{"kept", Value()}, {Value(), Value()}}));
}

TEST_F(Sure, SheetsAreProtectedAndUnprotected) {
    const ObjectRef sheet1 = sheet("Sheet1");
    call(sheet1, "Protect", {"Secret"});
    EXPECT_EQ(get(sheet1, "ProtectContents"), Value(true));
    for (const Arguments& wrong : {Arguments{}, Arguments{"secret"}}) {
        EXPECT_EQ(call_refused(sheet1, "Unprotect", wrong), error_1004);
    }
    EXPECT_EQ(refused(range("A1"), "Value", 1), error_1004);
    call(sheet1, "Unprotect", {"Secret"});
    EXPECT_EQ(get(sheet1, "ProtectContents"), Value(false));
    EXPECT_EQ(call_refused(sheet1, "Unprotect"), ok) << "there is nothing to do";
    EXPECT_EQ(refused(range("A1"), "Value", 1), ok);
    call(sheet1, "Protect", Arguments{}.name("UserInterfaceOnly", true));
    EXPECT_EQ(refused(range("A1"), "Value", 2), ok) << "macros may, people may not";
    EXPECT_EQ(get(sheet1, "ProtectContents"), Value(true));
    call(sheet1, "Protect", Arguments{}.name("AllowFormattingColumns", true));
    EXPECT_EQ(refused(range("A1"), "ColumnWidth", 20), ok);
    EXPECT_EQ(refused(range("A1"), "RowHeight", 20), error_1004);
}

TEST_F(Sure, ProtectedSheetsKeepTheirLockedCells) {
    put(range("A1"), "Value", 1);
    put(range("B1"), "Locked", false);
    call(sheet("Sheet1"), "Protect");
    EXPECT_EQ(refused(range("A1"), "Value", 2), error_1004);
    EXPECT_EQ(refused(range("A1:B1"), "Formula", "=1"), error_1004);
    EXPECT_EQ(call_refused(range("A1"), "ClearContents"), error_1004);
    EXPECT_EQ(refused(range("B1"), "Value", 2), ok);
    EXPECT_EQ(get(range("A1:B1"), "Value"), block({{1.0, 2.0}}));
    EXPECT_EQ(refused(range("B1"), "NumberFormat", "0.0"), ok) << "the cell is not locked";
    EXPECT_EQ(refused(range("A1:B1"), "NumberFormat", "0.00"), error_1004);
    const auto format_everything = [&] {
        std::vector<HResult> codes{
            refused(range("A1"), "NumberFormat", "0.00"), refused(font(range("A1")), "Bold", true),
            refused(interior(range("A1")), "ColorIndex", 3), refused(border(range("A1"), 8), "LineStyle", 1),
            refused(range("A1"), "HorizontalAlignment", -4108)};
        return codes;
    };
    EXPECT_EQ(format_everything(), std::vector<HResult>(5, error_1004));
    EXPECT_EQ(refused(range("B1"), "NumberFormat", "0.00"), ok);
    EXPECT_EQ(refused(range("A1"), "RowHeight", 20), error_1004);
    EXPECT_EQ(refused(range("A1"), "MergeCells", true), error_1004);
    EXPECT_EQ(get(range("A1"), "NumberFormat"), Value("General"));
    call(sheet("Sheet1"), "Protect", Arguments{}.name("AllowFormattingCells", true));
    EXPECT_EQ(format_everything(), std::vector<HResult>(5, ok));
    EXPECT_EQ(refused(range("A1"), "Locked", false), error_1004);
    EXPECT_EQ(refused(range("A1"), "ColumnWidth", 20), error_1004);
}

}  // namespace
}  // namespace kestrune::contract
