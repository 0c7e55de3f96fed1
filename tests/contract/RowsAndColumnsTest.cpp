#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Sure, HeightsAndWidthsAreWholePixels) {
    const struct {
        const char* member;
        double written, read;
    } cases[] = {
        {"RowHeight", 409.5, 409.5},   {"RowHeight", 12.7, 12.75},  {"RowHeight", 12.3, 12}, {"ColumnWidth", 255, 255},
        {"ColumnWidth", 10.33, 10.29}, {"ColumnWidth", 8.43, 8.43}, {"ColumnWidth", 1, 1},   {"ColumnWidth", 0.5, 0.5},
        {"RowHeight", 0, 0},           {"ColumnWidth", 0, 0},
    };
    for (const auto& [member, written, read] : cases) {
        put(range("B2"), member, written);
        EXPECT_EQ(get(range("B2"), member), Value(read)) << member << written;
    }
    EXPECT_EQ(get(object(range("B2"), "EntireRow"), "Hidden"), Value(true));
    EXPECT_EQ(get(object(range("B2"), "EntireColumn"), "Hidden"), Value(true));
    for (const double height : {-0.1, 409.51, 1e9}) EXPECT_EQ(refused(range("A1"), "RowHeight", height), error_1004);
    for (const double width : {-0.1, 255.01, 1e9}) EXPECT_EQ(refused(range("A1"), "ColumnWidth", width), error_1004);
    EXPECT_EQ(get(range("A1"), "RowHeight"), Value(15.0));
}

TEST_F(Sure, RowsAndColumnsHide) {
    put(range("3:4"), "RowHeight", 20);
    put(object(range("B3"), "EntireRow"), "Hidden", true);
    EXPECT_EQ(get(range("3:3"), "Hidden"), Value(true));
    EXPECT_EQ(get(range("3:4"), "Hidden"), Value(Null{}));
    EXPECT_EQ(get(range("B3"), "RowHeight"), Value(0.0));
    put(range("3:3"), "Hidden", false);
    EXPECT_EQ(get(range("3:4"), "RowHeight"), Value(20.25)) << "the height comes back";
    EXPECT_EQ(get(range("A1:A4"), "RowHeight"), Value(Null{}));
    EXPECT_EQ(number(range("A3:A4"), "Height"), 40.5);
    EXPECT_EQ(number(range("A3"), "Top"), 30);
    put(range("C:D"), "ColumnWidth", 0);
    EXPECT_EQ(get(range("C:D"), "Hidden"), Value(true));
    put(range("C:D"), "Hidden", false);
    EXPECT_EQ(get(range("C:D"), "Hidden"), Value(false));
    EXPECT_EQ(number(range("A1:B1"), "Width"), 96) << "two columns of 64 pixels";
    put(range("2:5"), "OutlineLevel", 3);
    EXPECT_EQ(get(range("2:5"), "OutlineLevel"), Value(3));
    EXPECT_EQ(get(range("1:5"), "OutlineLevel"), Value(Null{}));
    put(range("B:B"), "OutlineLevel", 2);
    EXPECT_EQ(get(object(sheet("Sheet1"), "Columns", {2}), "OutlineLevel"), Value(2));
}

TEST_F(Sure, StandardWidthIsTheWidthOfOtherColumns) {
    const ObjectRef inputs = sheet("Sheet1");
    EXPECT_EQ(get(inputs, "StandardWidth"), Value(8.43));
    EXPECT_EQ(get(inputs, "StandardHeight"), Value(15.0));
    put(inputs, "StandardWidth", 12);
    EXPECT_EQ(get(inputs, "StandardWidth"), Value(12.0));
    EXPECT_EQ(get(range("F1"), "ColumnWidth"), Value(12.0));
    EXPECT_EQ(refused(inputs, "StandardWidth", 256), error_1004);
}

TEST_F(Sure, RowsAndColumnsAreGroupedInEightLevels) {
    for (int level = 2; level <= 8; ++level) {
        call(range("3:5"), "Group");
        EXPECT_EQ(get(range("3:5"), "OutlineLevel"), Value(level));
    }
    EXPECT_EQ(call_refused(range("5:6"), "Group"), error_1004);
    EXPECT_EQ(get(range("6:6"), "OutlineLevel"), Value(1)) << "nothing has changed";
    call(object(range("B1:C1"), "EntireColumn"), "Group");
    call(range("C:D"), "Group");
    EXPECT_EQ(get(range("C:C"), "OutlineLevel"), Value(3));
    call(range("B:D"), "Ungroup");
    EXPECT_EQ(get(range("B:B"), "OutlineLevel"), Value(1));
    EXPECT_EQ(get(range("C:C"), "OutlineLevel"), Value(2));
    EXPECT_EQ(call_refused(range("F:F"), "Ungroup"), error_1004);
    call(object(sheet("Sheet1"), "Outline"), "ShowLevels", Arguments{}.name("ColumnLevels", 1));
    EXPECT_EQ(get(range("C:C"), "Hidden"), Value(true));
    EXPECT_EQ(get(range("3:3"), "Hidden"), Value(false));
}

TEST_F(Sure, OutlinesShowTheirLevels) {
    put(range("2:6"), "OutlineLevel", 2);
    put(range("3:4"), "OutlineLevel", 3);
    put(range("C:D"), "OutlineLevel", 2);
    const ObjectRef outline = object(sheet("Sheet1"), "Outline");
    const auto hidden_rows = [&] {
        std::string rows;
        for (const char* row : {"1:1", "2:2", "3:3", "4:4", "5:5", "6:6", "7:7"}) {
            rows += get(range(row), "Hidden") == Value(true) ? 'x' : '.';
        }
        return rows;
    };
    call(outline, "ShowLevels", {1});
    EXPECT_EQ(hidden_rows(), ".xxxxx.");
    call(outline, "ShowLevels", {2});
    EXPECT_EQ(hidden_rows(), "..xx...");
    call(outline, "ShowLevels", {8, 1});
    EXPECT_EQ(hidden_rows(), ".......");
    EXPECT_EQ(get(range("C:D"), "Hidden"), Value(true));
    EXPECT_EQ(call_refused(outline, "ShowLevels", {9}), error_1004);
    EXPECT_EQ(get(outline, "SummaryRow"), Value(xlSummaryBelow));
    EXPECT_EQ(get(outline, "SummaryColumn"), Value(xlRight));
    put(outline, "SummaryRow", xlSummaryAbove);
    EXPECT_EQ(get(outline, "SummaryRow"), Value(xlSummaryAbove));
}

}  // namespace
}  // namespace kestrune::contract
