#include "brxllib/ContentKind.h"
#include "brxllib/LibraryInHost.h"

namespace kestrune::brxllib {
namespace {

struct CellsTest : LibraryInHost {};

TEST_F(CellsTest, ContentKindsOfCellsAndBlocks) {
    const struct {
        const char* address;
        Value content;
        const char* format;
        std::int32_t kind;
    } rows[] = {
        {"A1", "", "General", 1},
        {"A2", "Revenue", "General", 2},
        {"A3", "'12", "General", 2},
        {"A4", true, "General", 3},
        {"A5", "#N/A", "General", 4},
        {"A6", 45000.0, "d-mmm-yy", 5},
        {"A7", 0.25, "h:mm", 6},
        {"A8", 45000.25, "yyyy-mm-dd hh:mm", 7},
        {"A9", 12.5, "#,##0.0_);(#,##0.0)", 8},
        {"A10", 0.5, "0%", 8},
        {"A11", 3.0, "\"days: \"0", 8},
    };
    std::vector<std::int32_t> all;
    for (const auto& row : rows) {
        write(row.address, row.content);
        cells(row.address).NumberFormat(row.format);
        EXPECT_EQ(library->content_kind(cells(row.address).object()), row.kind) << row.address;
        all.push_back(row.kind);
    }
    EXPECT_EQ(library->content_kinds(cells("A1:A11").object()), all);
    EXPECT_EQ(library->content_kinds(cells("A6,A1:A3").object()), std::vector<std::int32_t>{5}) << "the first area";
    EXPECT_THROW((void)library->content_kind(nullptr), automation::AutomationError);
}

TEST_F(CellsTest, LargeBlocksCostFewCalls) {
    cells("B1:B10000").Value(1.0);
    const auto calls = [&](const char* address) {
        return calls_of([&] { (void)library->content_kinds(cells(address).object()); });
    };
    EXPECT_EQ(calls("B1:B10000"), calls("B1:B2")) << "uniform cells";
    cells("B5001:B10000").NumberFormat("0.00");
    EXPECT_LE(calls("A1:C10000"), 40);
}

TEST(TimeFormats, AreToldFromDatesAndNumbers) {
    for (const char* code : {"h:mm", "[h]:mm:ss", "mm:ss.0", "h:mm AM/PM", "[$-409]h:mm;@", "\"at\" hh", "[ss]"})
        EXPECT_TRUE(is_time_format(code)) << code;
    for (const char* code : {"General", "0.00", "d-mmm-yy", "m/d/yy h:mm", "\"hours\" 0", "0\\h", "[Red]0", "0;h:mm",
                             "[$$-409]#,##0", "mmm", "@", "\"open", "[open"})
        EXPECT_FALSE(is_time_format(code)) << code;
}

// A model as people lay it out: labels and units at the left, a date above each column.
struct LabelsTest : LibraryInHost {
    LabelsTest() {
        write("A1", "Model of everything");
        write("D3", 46022.0);
        write("E3", 46387.0);
        cells("D3:E3").NumberFormat("d-mmm-yy");
        write("A5", "Revenue");
        write("B5", "$m");
        write("A6", 2026.0);
        write("C6", 7.0);
        write("D5:E9", 1.0);
        write("A7", "  ");
        write("A8", "Start");
        write("B8", 46022.0);
        cells("B8").NumberFormat("d-mmm-yy");
        write("A9", "#REF!");
        write("B9", 3.0);
        write("G300", "Low");
        write("G2000", 1.0);
    }
};

TEST_F(LabelsTest, AreTheNearestTextsAndHeadingDates) {
    using Find = ObjectRef (core::diBRXLLib::*)(const ObjectRef&) const;
    constexpr Find row = &core::diBRXLLib::row_label;
    constexpr Find column = &core::diBRXLLib::column_label;
    constexpr Find row_heading = &core::diBRXLLib::row_heading;
    constexpr Find column_heading = &core::diBRXLLib::column_heading;
    const struct {
        Find find;
        const char* cell;
        const char* label;
    } expected[] = {
        {row, "E5", "$B$5"},
        {row, "B5", "$A$5"},
        {row, "A5", "Nothing"},
        {row, "D6", "Nothing"},
        {row_heading, "D6", "$A$6"},
        {row, "D7", "Nothing"},
        {row_heading, "D7", "Nothing"},
        {row, "D8", "$B$8"},
        {row, "E3", "Nothing"},  // a date, and so is its neighbour
        {row_heading, "D9", "$B$9"},
        {column, "D9", "$D$3"},
        {column, "E5", "$E$3"},
        {column, "A6", "$A$5"},
        {column, "C9", "Nothing"},
        {column_heading, "C9", "$C$6"},
        {column, "G2000", "$G$300"},
        {column, "G299", "Nothing"},
        {column, "A1", "Nothing"},
        {column_heading, "A1", "Nothing"},
    };
    for (const auto& [find, cell, label] : expected)
        EXPECT_EQ(address_of((*library.*find)(cells(cell).object())), label) << cell;
    EXPECT_LE(calls_of([&] { (void)library->column_label(cells("H900000").object()); }), 60);
}

TEST_F(LabelsTest, YearsBesideYearsHeadLines) {
    write("K2", "Balance Sheet");
    write("K3", 2026.0);
    write("L3", 2027.0);
    write("L5", 2000.0);
    write("N2", "Total");
    write("N3", 2030.0);
    for (const auto& [cell, label] : {std::pair("K9", "$K$3"), {"L9", "$L$3"}, {"L3", "Nothing"}, {"N9", "$N$2"}}) {
        EXPECT_EQ(address_of(library->column_label(cells(cell).object())), label) << cell;
    }
}

TEST_F(LabelsTest, WhatIsInUseOfWholeRowsAndColumns) {
    EXPECT_EQ(address_of(library->in_use(cells("A:B").object())), "$A$1:$B$2000");
    EXPECT_EQ(address_of(library->in_use(cells("5:6").object())), "$A$5:$G$6");
    EXPECT_EQ(address_of(library->in_use(cells("J1:J5").object())), "Nothing");
}

TEST_F(CellsTest, FormulasShift) {
    EXPECT_EQ(library->shift_formula("=R[-1]C+R5C+Sheet2!RC[2]+R[3]C:R[4]C", 2, -1),
              "=R[1]C[-1]+R5C[-1]+Sheet2!R[2]C[1]+R[5]C[-1]:R[6]C[-1]");
    EXPECT_EQ(library->shift_formula("=R[-3]C+R1C1", -2, 0), "=R[-5]C+R1C1") << "no cell, no edge";
    EXPECT_EQ(library->shift_formula("=R[-3]C+R1C1&\"R[-3]C\"", -2, 0, 5, 1), "=#REF!+R1C1&\"R[-3]C\"");
    EXPECT_EQ(library->shift_formula("=R[-3]C", -2, 0, 6, 1), "=R[-5]C");
    EXPECT_EQ(library->shift_formula("=SUM(C[1],Data!C[-1]:C)", 0, 1, 1, 16383), "=SUM(#REF!,Data!C:C[1])");
    EXPECT_EQ(library->shift_formula("Revenue", 1, 1), "Revenue");
    EXPECT_THROW((void)library->shift_formula("=RC", 1, 1, 0, 1), automation::AutomationError);
}

TEST_F(CellsTest, ArraysShowAsTables) {
    const auto shown = [&](const Value& array) {
        library->display_array(array, "Keys");
        EXPECT_EQ(presenter.messages().back().caption, "Keys");
        return presenter.messages().back().text;
    };
    cells("A1:B2").Value(2.5);
    write("A2", "Größe");
    EXPECT_EQ(shown(cells("A1:B2").Value()), "2.5    2.5\r\nGröße  2.5");
    automation::Array records(automation::Array::Bound{0, 2});
    automation::Array record(automation::Array::Bound{0, 2});
    record.elements() = {"Smart Copy", 1};
    records.elements() = {record, "alone"};
    EXPECT_EQ(shown(records), "Smart Copy  1\r\nalone");
    EXPECT_EQ(shown(automation::Array(automation::Array::Bound{1, 0})), "(empty)");
    EXPECT_EQ(shown("just this"), "just this");
    const std::string large = shown(cells("A1:Z100").Value());
    EXPECT_EQ(std::ranges::count(large, '\n'), 30);
    EXPECT_THAT(large, testing::EndsWith("(100 rows, 26 columns in all)"));
    write("A1", std::string(1000, 'x'));
    EXPECT_LT(shown(cells("A1:A2").Value()).size(), 100U);
}

}  // namespace
}  // namespace kestrune::brxllib
