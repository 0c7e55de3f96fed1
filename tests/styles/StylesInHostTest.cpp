#include "styles/AddInInHost.h"
#include "styles/Sides.h"
#include "styles/cStyle.h"

namespace kestrune::styles {
namespace {

struct StylesInHost : AddInInHost {
    StylesInHost() {
        shared.application = application.object();
        shared.spreadsheet_library = std::make_shared<core::diBRXLLib>(trace);
        EXPECT_TRUE(shared.spreadsheet_library->Create());
    }

    // A style of borders only.
    static StyleFields bordered(bool left, bool top, bool bottom, bool right, bool internal) {
        StyleFields fields;
        fields.bTransNumberFormat = fields.bTransFontSetting = fields.bTransFontStyle = fields.bTransFontSize =
            fields.bTransUnderline = fields.bTransFontColor = fields.bTransCellColor =
                fields.bTransHorizontalAlignment = fields.bTransVerticalAlignment = fields.bTransOrientation =
                    fields.bTransIndents = fields.bTransShrinkToFit = fields.bTransWrapTest =
                        fields.bTransStrikeThrough = true;
        fields.BorderStyle = excel::xlContinuous;
        fields.BorderWeight = excel::xlMedium;
        fields.BorderColor = 255;
        fields.BorderLeft = left;
        fields.BorderTop = top;
        fields.BorderBottom = bottom;
        fields.BorderRight = right;
        fields.BordersInternal = internal;
        return fields;
    }

    // All four edges of every cell of a block.
    [[nodiscard]] std::string edges(std::int32_t first_column) const {
        std::string text;
        for (std::int32_t row = 1; row <= 8; ++row) {
            for (std::int32_t column = first_column; column < first_column + 8; ++column) {
                const excel::Range cell = application.ActiveWorkbook().Worksheets().Item(1).Cells().Item(row, column);
                for (const Side& side : sides) text += edge_of(cell, side.edge) + " ";
            }
            text += "\n";
        }
        return text;
    }

    core::SharedState shared{presenter, trace};
};

// What the add-in draws with a handful of calls is what drawing cell by cell gives.
TEST_F(StylesInHost, GridsAreWhatEveryCellsOwnSidesGive) {
    struct Shape {
        const char* address;
        const char* same_further_right;
    };
    const Shape shapes[] = {
        {"C3", "M3"}, {"C3:F3", "M3:P3"}, {"C3:C6", "M3:M6"}, {"C3:E5", "M3:O5"}, {"C2:D3,D5:E7,G2", "M2:N3,N5:O7,Q2"}};
    for (const Shape& shape : shapes) {
        for (unsigned chosen = 0; chosen < 16; ++chosen) {
            SCOPED_TRACE(std::string(shape.address) + " " + std::to_string(chosen));
            clear_formats("A1:R8");
            cStyle style(bordered(chosen & 1, chosen & 2, chosen & 4, chosen & 8, true));
            style.Apply(shared, cells(shape.address));

            const excel::Areas areas = cells(shape.same_further_right).Areas();
            for (std::int32_t a = 1; a <= areas.Count(); ++a) {
                const excel::Range area = areas.Item(a);
                for (std::int32_t r = 1; r <= area.Rows().Count(); ++r) {
                    for (std::int32_t c = 1; c <= area.Columns().Count(); ++c) {
                        for (const Side& side : sides) {
                            if (!(style.*side.selected)) continue;
                            const excel::Border edge = area.Cells(r, c).Borders(side.edge);
                            edge.Weight(excel::xlMedium);
                            edge.LineStyle(excel::xlContinuous);
                            edge.ColorIndex(3);
                        }
                    }
                }
            }
            ASSERT_EQ(edges(1), edges(11));
            if (chosen != 0) {
                EXPECT_TRUE(style.IsApplied(shared, cells(shape.address)));
            }
        }
    }
}

TEST_F(StylesInHost, OutlinesAreRecognisedOnAnyShapeAndNowhereElse) {
    for (unsigned chosen = 1; chosen < 16; ++chosen) {
        for (const char* address : {"C3", "C3:F3", "C3:C6", "C3:E5"}) {
            SCOPED_TRACE(std::string(address) + " " + std::to_string(chosen));
            clear_formats("A1:H8");
            cStyle style(bordered(chosen & 1, chosen & 2, chosen & 4, chosen & 8, false));
            style.AsBorderColorIndex = 3;
            EXPECT_FALSE(style.IsApplied(shared, cells(address)));
            style.Apply(shared, cells(address));
            EXPECT_TRUE(style.IsApplied(shared, cells(address)));
        }
    }
}

TEST_F(StylesInHost, UnselectedSidesLoseTheirBorderAndTheGridInsideStays) {
    cStyle box(bordered(true, true, true, true, true));
    box.Apply(shared, cells("B2:C3"));
    cells("B2").Borders(excel::xlDiagonalDown).LineStyle(excel::xlContinuous);
    cStyle left(bordered(true, false, false, false, false));
    left.Apply(shared, cells("B2:C3"));
    const std::string line = "1/-4138/3";
    EXPECT_EQ(edge_of(cells("B2"), excel::xlEdgeLeft), line);
    EXPECT_EQ(edge_of(cells("B2"), excel::xlEdgeTop), "-");
    EXPECT_EQ(edge_of(cells("B2"), excel::xlEdgeRight), line);
    EXPECT_EQ(edge_of(cells("C3"), excel::xlEdgeBottom), "-");
    EXPECT_EQ(edge_of(cells("C3"), excel::xlEdgeRight), "-");
    EXPECT_EQ(edge_of(cells("B2"), excel::xlDiagonalDown), "-");
    EXPECT_TRUE(left.IsApplied(shared, cells("B2:C3")));
}

TEST_F(StylesInHost, AStyleWithoutSidesReadsBackNoBorder) {
    cStyle style(bordered(false, false, false, false, false));
    style.Apply(shared, cells("B2"));
    EXPECT_EQ(style.BorderStyle, excel::xlNone);
    EXPECT_EQ(style.BorderWeight, excel::xlThin);
    EXPECT_EQ(style.AsBorderColorIndex, 0);
}

TEST_F(StylesInHost, WhatThePaletteMadeOfAColorIsRecognised) {
    cStyle style;
    style.FontColor = 0x123456;
    style.CellColor = 0x98FEFD;
    style.BorderLeft = true;
    style.BorderStyle = excel::xlDouble;
    style.BorderColor = 0xFE0102;
    EXPECT_FALSE(style.IsApplied(shared, cells("B2")));
    style.Apply(shared, cells("B2:C3"));
    EXPECT_TRUE(style.IsApplied(shared, cells("B2:C3")));
    EXPECT_EQ(style.FontColor, 0x123456);
    EXPECT_EQ(style.AsFontColor, cells("B2").Worksheet().Parent().Colors(cells("B2").Font().ColorIndex()));
    EXPECT_EQ(style.AsCellColorIndex, 36);
    EXPECT_EQ(style.AsBorderColorIndex, 5);

    // White is no fill, never a white one.
    style.CellColor = no_fill;
    EXPECT_FALSE(style.IsApplied(shared, cells("B2")));
    style.Apply(shared, cells("B2"));
    EXPECT_EQ(cells("B2").Interior().ColorIndex(), excel::Value(excel::xlNone));
    EXPECT_TRUE(style.IsApplied(shared, cells("B2")));
}

TEST_F(StylesInHost, ACapturedStylePaintsWhatItWasCapturedFrom) {
    for (const char* request : {"20.3", "30.2", "31.3", "25.4", "28.1", "29.4", "33.3"}) press("B2", request);
    cells("B2").Font().Strikethrough(true);
    cells("B2").Orientation(45);
    cells("B2").WrapText(true);
    for (const char* borders : {"29.3", "29.4", "29.5", "29.6", "29.2"}) {
        SCOPED_TRACE(borders);
        press("B2", borders);
        cStyle style;
        style.BorderLeft = style.BorderRight = true;
        style.bTransShrinkToFit = true;
        cells("B2").Select();
        style.CaptureFromCell(shared, excel::Range());  // the active cell
        EXPECT_TRUE(style.bTransShrinkToFit);
        EXPECT_TRUE(style.IsApplied(shared, cells("B2")));
        style.Apply(shared, cells("H8"));
        EXPECT_EQ(look_of(cells("H8")), look_of(cells("B2")));
    }
}

TEST_F(StylesInHost, CaptureTakesTheFirstBorderedSideOfACellWhoseEdgesDiffer) {
    cells("B2").Borders(excel::xlEdgeTop).LineStyle(excel::xlDouble);
    cells("B2").Borders(excel::xlEdgeTop).ColorIndex(3);
    cells("B2").Borders(excel::xlEdgeRight).LineStyle(excel::xlDash);
    cStyle style;
    style.CaptureFromCell(shared, cells("B2"));
    EXPECT_FALSE(style.BorderLeft);
    EXPECT_TRUE(style.BorderTop);
    EXPECT_FALSE(style.BorderBottom);
    EXPECT_TRUE(style.BorderRight);
    EXPECT_EQ(style.BorderStyle, excel::xlDouble);
    EXPECT_EQ(style.BorderColor, 255);
    EXPECT_EQ(style.CellColor, no_fill);
}

TEST_F(StylesInHost, AProtectedSheetStaysAsItIs) {
    const std::string before = look_of(cells("B2"));
    workbook->sheet("Sheet1")->protection().on = true;
    for (const char* request : {"19", "25", "26", "27", "28", "29", "30", "31"}) press("B2:D4", request);
    EXPECT_EQ(look_of(cells("B2")), before);
    EXPECT_THAT(presenter.messages(), testing::IsEmpty());
}

}  // namespace
}  // namespace kestrune::styles
