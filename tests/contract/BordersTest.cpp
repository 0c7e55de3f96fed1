#include "contract/ContractTest.h"

namespace kestrune::contract {
namespace {

TEST_F(Likely, BordersLineAndWeightFallToPairsThatExist) {
    const struct {
        std::int32_t weight, line, read_line, read_weight;
    } cases[] = {
        {xlThin, xlDouble, xlDouble, xlThick},
        {xlThick, xlDash, xlDash, xlMedium},
        {xlHairline, xlDash, xlDash, xlThin},
        {xlMedium, xlDot, xlDot, xlThin},
        {xlThin, xlSlantDashDot, xlSlantDashDot, xlMedium},
        {xlThick, xlContinuous, xlContinuous, xlThick},
        {xlMedium, xlDashDotDot, xlDashDotDot, xlMedium},
    };
    for (const auto& [weight, line, read_line, read_weight] : cases) {
        draw("B2", xlEdgeTop, xlNone);
        const ObjectRef top = border(range("B2"), xlEdgeTop);
        EXPECT_EQ(get(top, "ColorIndex"), Value(xlNone));
        put(top, "Weight", weight);
        EXPECT_EQ(get(top, "LineStyle"), Value(xlContinuous)) << "a weight alone draws a continuous line";
        put(top, "LineStyle", line);
        put(top, "ColorIndex", 5);
        EXPECT_EQ(get(top, "LineStyle"), Value(read_line));
        EXPECT_EQ(get(top, "Weight"), Value(read_weight));
        EXPECT_EQ(get(top, "ColorIndex"), Value(5));
    }
    draw("B2", xlEdgeTop, xlDouble);
    put(border(range("B2"), xlEdgeTop), "Weight", xlHairline);
    EXPECT_EQ(style("B2", xlEdgeTop), Value(xlContinuous)) << "no other line is a hairline";
}

TEST_F(Likely, BordersEdgesAreTheRimAndInsidesTheRest) {
    draw("B2:D4", xlEdgeLeft);
    draw("B2:D4", xlEdgeBottom);
    EXPECT_EQ(style("B3", xlEdgeLeft), Value(xlContinuous));
    EXPECT_EQ(style("C3", xlEdgeLeft), Value(xlNone));
    EXPECT_EQ(style("D4", xlEdgeBottom), Value(xlContinuous));
    EXPECT_EQ(style("B2:D4", xlEdgeTop), Value(xlNone));
    draw("B2:D4", xlInsideVertical, xlDash);
    EXPECT_EQ(style("C3", xlEdgeLeft), Value(xlDash));
    EXPECT_EQ(style("C3", xlEdgeRight), Value(xlDash));
    EXPECT_EQ(style("D4", xlEdgeRight), Value(xlNone));
    EXPECT_EQ(style("B2:D4", xlInsideVertical), Value(xlDash));
    EXPECT_EQ(style("B2:D4", xlInsideHorizontal), Value(xlNone));
    draw("C3", xlEdgeTop);
    EXPECT_EQ(style("B2:D4", xlInsideHorizontal), Value(Null{}));
    EXPECT_EQ(style("B2,F6", xlEdgeLeft), Value(Null{}));
}

TEST_F(Likely, BordersNeighboursShareTheirLine) {
    draw("B2", xlEdgeRight);
    put(border(range("B2"), xlEdgeRight), "ColorIndex", 3);
    EXPECT_EQ(style("C2", xlEdgeLeft), Value(xlContinuous));
    EXPECT_EQ(get(border(range("C2"), xlEdgeLeft), "ColorIndex"), Value(3));
    put(border(range("C2"), xlEdgeLeft), "Weight", xlThick);
    EXPECT_EQ(get(border(range("B2"), xlEdgeRight), "Weight"), Value(xlThick)) << "written from the other side";
    EXPECT_EQ(get(border(range("C2"), xlEdgeLeft), "ColorIndex"), Value(3));
    draw("C2", xlEdgeLeft, xlNone);
    EXPECT_EQ(style("B2", xlEdgeRight), Value(xlNone));
    draw("F1:F3", xlEdgeBottom);
    draw("F4:G9", xlEdgeTop, xlNone);
    EXPECT_EQ(style("F3", xlEdgeBottom), Value(xlNone));
}

TEST_F(Likely, BordersAllLinesTogether) {
    const ObjectRef all = object(range("B2:C3"), "Borders");
    EXPECT_EQ(get(all, "LineStyle"), Value(xlNone));
    put(all, "LineStyle", xlContinuous);
    put(all, "ColorIndex", 4);
    for (const std::int32_t index : {7, 8, 9, 10, 11, 12}) EXPECT_EQ(style("B2:C3", index), Value(xlContinuous));
    EXPECT_EQ(style("B2:C3", xlDiagonalUp), Value(xlNone));
    EXPECT_EQ(get(all, "Weight"), Value(xlThin));
    EXPECT_EQ(get(all, "ColorIndex"), Value(4));
    draw("C3", xlEdgeRight, xlDouble);
    EXPECT_EQ(get(all, "LineStyle"), Value(Null{}));
    EXPECT_EQ(get(object(range("B2"), "Borders"), "LineStyle"), Value(xlContinuous));
    put(all, "LineStyle", xlNone);
    EXPECT_EQ(get(all, "LineStyle"), Value(xlNone));
    EXPECT_EQ(style("D3", xlEdgeLeft), Value(xlNone));
}

TEST_F(Likely, BordersDiagonalsShareOneLineOfACell) {
    draw("B2:C3", xlDiagonalDown, xlDash);
    EXPECT_EQ(style("C3", xlDiagonalDown), Value(xlDash));
    EXPECT_EQ(style("C3", xlDiagonalUp), Value(xlNone));
    draw("C3", xlDiagonalUp);
    EXPECT_EQ(style("C3", xlDiagonalDown), Value(xlContinuous));
    draw("B2:C3", xlDiagonalDown, xlNone);
    EXPECT_EQ(style("C3", xlDiagonalUp), Value(xlContinuous));
    EXPECT_EQ(style("B2", xlDiagonalDown), Value(xlNone));
}

TEST_F(Likely, BordersOneCellHasNoLinesInside) {
    EXPECT_EQ(style("B2", xlInsideVertical), Value(xlNone));
    draw("B2", xlInsideVertical, xlNone);
    EXPECT_EQ(refused(border(range("B2"), xlInsideVertical), "LineStyle", xlContinuous), error_1004);
    EXPECT_EQ(refused(border(range("B2"), xlInsideHorizontal), "Weight", xlThin), error_1004);
    for (const std::int32_t index : {0, 4, 13}) {
        EXPECT_EQ(call_refused(object(range("B2"), "Borders"), "Item", {index}), error_1004);
    }
}

}  // namespace
}  // namespace kestrune::contract
