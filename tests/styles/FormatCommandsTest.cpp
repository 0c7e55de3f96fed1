#include <algorithm>
#include <random>
#include <sstream>

#include "styles/AddInInHost.h"

namespace kestrune::styles {
namespace {

using automation::Value;

constexpr double steps[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72, 80};

struct FormatCommands : AddInInHost {
    // The lines of the cells of B2:C3 and around, each cell as left, top, bottom, right.
    [[nodiscard]] std::string lines(std::string_view address) const {
        std::string text;
        for (std::int32_t edge = excel::xlEdgeLeft; edge <= excel::xlEdgeRight; ++edge) {
            text += edge_of(cells(address), edge) == "-" ? '.' : 'x';
        }
        return text;
    }
    [[nodiscard]] std::int64_t calls_of(std::string_view address, std::string_view request) const {
        cells(address).Select();
        const std::int64_t before = session.calls();
        automation::call(*global, "RunMacro", {request});
        return session.calls() - before;
    }
};

TEST_F(FormatCommands, BordersGoWhereTheirNamesSay) {
    const struct {
        const char* presses;
        const char* selection;
        std::vector<std::pair<const char*, const char*>> lines;  // left, top, bottom, right
    } rows[] = {
        {"80", "B2:C3", {{"B2", ".x.."}, {"C2", ".x.."}, {"B3", "...."}}},
        {"80 80", "B2:C3", {{"B2", "...."}, {"C2", "...."}}},
        {"81", "B2:C3", {{"B3", "..x."}, {"C3", "..x."}, {"B2", "...."}}},
        {"82", "B2:C3", {{"B2", "x..."}, {"B3", "x..."}, {"C2", "...."}}},
        {"83", "B2:C3", {{"C2", "...x"}, {"C3", "...x"}, {"B2", "...."}}},
        {"84", "B2:C3", {{"B2", "xx.."}, {"C3", "..xx"}}},
        {"84 84", "B2:C3", {{"B2", "xx.."}, {"C3", "..xx"}}},
        {"85", "B2:C3", {{"B2", "..xx"}, {"C3", "xx.."}, {"A2", "...."}}},
        {"85", "B2", {{"B2", "...."}}},
        {"85", "B2:B3,D2:E2,G7", {{"B2", "..x."}, {"D2", "...x"}, {"G7", "...."}}},
        {"84", "B2,D2", {{"B2", "xxxx"}, {"C2", "x..x"}, {"D2", "xxxx"}}},
        {"84 85 86", "B2:C3", {{"B2", "...."}, {"C3", "...."}, {"B1", "...."}, {"D3", "...."}}},
        {"84", "2:2", {{"A2", "xxx."}, {"M2", ".xx."}}},
        {"85", "B:C", {{"B1", "..xx"}, {"C9", "xxx."}}},
        {"84 86", "1:1048576", {{"A1", "...."}}},
    };
    for (const auto& row : rows) {
        clear_formats("1:1048576");
        SCOPED_TRACE(std::string(row.presses) + " on " + row.selection);
        std::istringstream presses(row.presses);
        for (std::string request; presses >> request;) press(row.selection, request);
        for (const auto& [cell, expected] : row.lines) EXPECT_EQ(lines(cell), expected) << cell;
    }
}

TEST_F(FormatCommands, AnEdgeThatIsThereInPartsIsDrawnWholeFirst) {
    cells("B2").Borders(excel::xlEdgeBottom).LineStyle(excel::xlDouble);
    press("B2:C2", "81");
    EXPECT_EQ(edge_of(cells("B2"), excel::xlEdgeBottom), "1/2/-4105");
    EXPECT_EQ(edge_of(cells("C2"), excel::xlEdgeBottom), "1/2/-4105");
    press("B2:C2", "81");
    EXPECT_EQ(lines("B2") + lines("C2"), "........");
    cells("B2").Borders(excel::xlDiagonalUp).LineStyle(excel::xlContinuous);
    press("B2", "86");
    EXPECT_EQ(edge_of(cells("B2"), excel::xlDiagonalUp), "-");
}

TEST_F(FormatCommands, FontSizesGoAlongExcelsList) {
    const struct {
        double before;
        double larger;
        double smaller;
    } rows[] = {{8, 9, 7},    {10, 11, 9},  {12, 14, 11}, {13, 14, 12},    {10.5, 11, 10},  {28, 36, 26}, {72, 80, 48},
                {75, 80, 72}, {80, 90, 72}, {85, 90, 80}, {400, 409, 390}, {409, 409, 400}, {1, 2, 1},    {7.5, 8, 7}};
    for (const auto& [before, larger, smaller] : rows) {
        for (const auto& [request, after] : {std::pair("53", larger), std::pair("54", smaller)}) {
            cells("B2").Font().Size(before);
            press("B2", request);
            EXPECT_EQ(cells("B2").Font().Size(), Value(after)) << before << " by " << request;
        }
    }
}

// Every cell of a mixed selection goes its own way: on the cells, on the rows and columns, beyond what is used.
TEST_F(FormatCommands, FontSizesOfAMixedSelectionStepCellByCell) {
    const double sizes[] = {8, 10, 11, 14, 72};
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto upto = [&](unsigned n) { return random() % n; };
        clear_formats("1:1048576");
        for (const char* area : {"A:C", "4:6", "B2:F9", "D4:D8", "C:C", "7:7"}) {
            if (upto(2) == 0) cells(area).Font().Size(sizes[upto(5)]);
        }
        for (int i = 0; i < 6; ++i)
            cells("A1:H12")
                .Cells(1 + static_cast<int>(upto(12)), 1 + static_cast<int>(upto(8)))
                .Font()
                .Size(sizes[upto(5)]);
        const char* selections[] = {"B2:F9", "A:D", "3:8", "1:1048576", "A1:C4,E2:H9", "B:B,D4:F6"};
        const char* selection = selections[seed % 6];
        const excel::Range block = cells("A1:I14");
        std::vector<double> expected;
        for (int i = 1; i <= 14 * 9; ++i) {
            const excel::Range cell = block.Cells(1 + (i - 1) / 9, 1 + (i - 1) % 9);
            const double points = automation::to_double(cell.Font().Size());
            const bool selected = static_cast<bool>(application.Intersect(cell, cells(selection)));
            const auto* const larger = std::ranges::upper_bound(std::begin(steps), std::end(steps), points);
            expected.push_back(selected ? *larger : points);
        }
        press(selection, "53");
        for (int i = 1; i <= 14 * 9; ++i) {
            const excel::Range cell = block.Cells(1 + (i - 1) / 9, 1 + (i - 1) % 9);
            EXPECT_EQ(cell.Font().Size(), Value(expected[static_cast<std::size_t>(i - 1)])) << cell.Address();
        }
    }
}

TEST_F(FormatCommands, WrapTogglesAndClearingLeavesTheGeneralStyle) {
    cells("B2").WrapText(true);
    press("B2:B9", "96");
    EXPECT_EQ(cells("B2:B9").WrapText(), Value(true));
    press("B2:B9", "96");
    EXPECT_EQ(cells("B2:B9").WrapText(), Value(false));

    cells("B2:B9").Value(1.5);
    const std::string plain = look_of(cells("Z99"));
    for (const char* request : {"20", "84", "30", "53", "24"}) press("B2:B9", request);
    press("B2:B9", "56");
    EXPECT_EQ(look_of(cells("B2")), plain);
    EXPECT_EQ(look_of(cells("B9")), plain);
    EXPECT_EQ(cells("B2:B9").FormatConditions().Count(), 0);
    EXPECT_EQ(cells("B9").Value(), Value(1.5));
}

TEST_F(FormatCommands, UniformCellsCostTheSameHoweverManyTheyAre) {
    for (const char* request :
         {"51", "52", "53", "54", "56", "94", "95", "80", "81", "82", "83", "84", "85", "86", "96", "18"}) {
        const auto four = calls_of("B2:C3", request);
        press("B2:C3", request);
        for (const char* cells : {"B2:K11", "B2:CW101", "B:CW", "2:101"}) {
            clear_formats("1:1048576");
            // Undo records the used cells of whole columns and rows, and the blank ones beyond.
            const auto most = std::string_view(cells).size() > 5 ? four : 2 * four;
            EXPECT_LE(calls_of(cells, request), most) << request << " on " << cells;
        }
        clear_formats("1:1048576");
    }
}

TEST_F(FormatCommands, EachNumberFormatOfASelectionIsAdjustedForItself) {
    cells("A:D").NumberFormat("0.0");
    cells("B2").NumberFormat("@");
    cells("C3:C5").NumberFormat("#,##0_);(#,##0)");
    cells("3:3").NumberFormat("d-mmm");
    cells("E1").Value("note");
    cells("E2").Value(12.25);
    const struct {
        const char* request;
        const char* selection;
        std::vector<std::pair<const char*, const char*>> formats;
    } rows[] = {
        {"51",
         "A1:E5",
         {{"A1", "0.00"},
          {"B2", "@"},
          {"C4", "#,##0.0_);(#,##0.0)"},
          {"D3", "d-mmm"},
          {"E2", "0.000"},
          {"E1", "0.000"},
          {"A6", "0.0"}}},
        {"52", "A1:E5", {{"A1", "0.0"}, {"C4", "#,##0_);(#,##0)"}, {"E2", "0.00"}}},
        {"51",
         "A:D",
         {{"A1", "0.00"}, {"A1048576", "0.00"}, {"B2", "@"}, {"C4", "#,##0.0_);(#,##0.0)"}, {"D3", "d-mmm"}}},
        {"94", "C4:C5,D1", {{"C4", "#,##0.0,_);(#,##0.0,)"}, {"D1", "0.00,"}, {"C1", "0.00"}}},
        {"95", "C4:C5,D1", {{"C4", "#,##0.0_);(#,##0.0)"}, {"D1", "0.00"}}},
    };
    for (const auto& row : rows) {
        press(row.selection, row.request);
        for (const auto& [cell, format] : row.formats) {
            EXPECT_EQ(cells(cell).NumberFormat(), Value(format))
                << row.request << " on " << row.selection << " at " << cell;
        }
    }
    EXPECT_EQ(cells("E2").Value2(), Value(12.25));
    for (const forms::Message& message : presenter.messages()) {
        EXPECT_THAT(message.text, testing::Not(testing::HasSubstr("number format")));
    }
    press("B2", "51");
    ASSERT_FALSE(presenter.messages().empty());
    EXPECT_EQ(presenter.messages().back().text,
              "None of the selected cells has a number format with decimal places to adjust.");
    press("A3:D3", "94");
    EXPECT_EQ(presenter.messages().back().text,
              "None of the selected cells has a number format that can show thousands.");
    const std::string longest = "0.0\"" + std::string(250, 'x') + "\"";
    cells("G1").NumberFormat(longest);
    press("G1:H1", "51");
    EXPECT_EQ(cells("G1").NumberFormat(), Value(longest));
    EXPECT_EQ(cells("H1").NumberFormat(), Value("0.0"));
    EXPECT_EQ(presenter.messages().back().text,
              "Some number formats could not be adjusted, since they would be longer than the 255 characters that "
              "Excel allows.");
}

TEST_F(FormatCommands, AnchorsStepTogether) {
    const char* const steps_of_anchors[] = {"=$A$1+$B$2", "=A$1+B$2", "=$A1+$B2", "=A1+B2", "=$A$1+$B$2"};
    cells("D4").Formula("=A1+$B$2");
    cells("D5").Formula("=SUM(A:A,2:3,Sheet1!$A$1:B2)&\"A1\"");
    cells("D6").Value("=A1");
    cells("D7").Value("'=A1");
    for (const char* formula : steps_of_anchors) {
        press("D4:D9", "2");
        EXPECT_EQ(cells("D4").Formula(), Value(formula));
    }
    EXPECT_EQ(cells("D5").Formula(), Value("=SUM($A:$A,$2:$3,Sheet1!$A$1:$B$2)&\"A1\""));
    EXPECT_EQ(cells("D6").Formula(), Value("=$A$1"));
    EXPECT_EQ(cells("D7").Formula(), Value("=A1"));
    press("D5", "2");
    EXPECT_EQ(cells("D5").Formula(), Value("=SUM(A:A,$2:$3,Sheet1!A$1:B$2)&\"A1\""));
}

}  // namespace
}  // namespace kestrune::styles
