#include <algorithm>
#include <random>

#include "styles/AddInInHost.h"

namespace kestrune::styles {
namespace {

using automation::Value;

struct CellContentCommands : AddInInHost {
    [[nodiscard]] std::string formula(std::string_view address) const {
        return automation::to_text(cells(address).Formula());
    }
    [[nodiscard]] std::int64_t calls_of(std::string_view address, std::string_view request) const {
        cells(address).Select();
        const std::int64_t before = session.calls();
        automation::call(*global, "RunMacro", {request});
        return session.calls() - before;
    }
    // What a block shows: formulas, row heights, alignments, colours.
    [[nodiscard]] std::vector<std::string> picture(std::int32_t rows, std::int32_t columns) const {
        std::vector<std::string> lines;
        const excel::Range block = cells("A1").Resize(rows, columns);
        for (std::int32_t row = 1; row <= rows; ++row) {
            std::string line = automation::to_text(block.Cells(row, 1).RowHeight());
            for (std::int32_t column = 1; column <= columns; ++column) {
                const excel::Range cell = block.Cells(row, column);
                line += "|" + automation::to_text(cell.Formula()) + " " +
                        automation::to_text(cell.HorizontalAlignment()) + " " +
                        automation::to_text(cell.Font().Color());
            }
            lines.push_back(line);
        }
        return lines;
    }
};

TEST_F(CellContentCommands, ErrorsAreTrappedAndLetGoAgain) {
    const struct {
        const char* plain;
        const char* trapped;
    } rows[] = {
        {"=A1/B1", "=IF(ISERROR(A1/B1), \"NA\", A1/B1)"},
        {"=SUM(A1:A3)/(B1+(C1-2))", "=IF(ISERROR(SUM(A1:A3)/(B1+(C1-2))), \"NA\", SUM(A1:A3)/(B1+(C1-2)))"},
        {"=A1&\")(\"\"é\U0001F4C8\"&B1",
         "=IF(ISERROR(A1&\")(\"\"é\U0001F4C8\"&B1), \"NA\", A1&\")(\"\"é\U0001F4C8\"&B1)"},
        {"='Q (1'!A1", "=IF(ISERROR('Q (1'!A1), \"NA\", 'Q (1'!A1)"},
    };
    workbook->add_sheet("Q (1");
    const auto at = [&](const char* address) {
        return application.ActiveWorkbook().Worksheets().Item("Sheet1").Range(address);
    };
    for (const auto& [plain, trapped] : rows) {
        at("D4").Formula(plain);
        at("D4").Select();
        automation::call(*global, "RunMacro", {"55"});
        EXPECT_EQ(at("D4").Formula(), Value(trapped));
        EXPECT_EQ(at("D4").HorizontalAlignment(), Value(excel::xlRight));
        automation::call(*global, "RunMacro", {"55"});
        EXPECT_EQ(at("D4").Formula(), Value(plain));
    }
}

TEST_F(CellContentCommands, TheFirstCellSaysWhetherErrorsAreTrapped) {
    const auto fill = [&] {
        cells("B2").Formula("=IF(ISERROR(A1), \"NA\", A1)");
        cells("B3").Formula("=A3");
        cells("B4").Value("'=A4");
        cells("B5").Value(5);
    };
    fill();
    press("B2:B5", "55");
    EXPECT_EQ(formula("B2") + formula("B3"), "=A1=A3");
    EXPECT_EQ(cells("B2").HorizontalAlignment(), Value(excel::xlGeneral)) << "letting go aligns nothing";
    fill();
    press("B3:B5,B2", "55");
    EXPECT_EQ(formula("B2"), "=IF(ISERROR(A1), \"NA\", A1)");
    EXPECT_EQ(formula("B3"), "=IF(ISERROR(A3), \"NA\", A3)");
    EXPECT_EQ(formula("B4"), "=A4");
    EXPECT_EQ(cells("B4").HasFormula(), Value(false));
    EXPECT_EQ(cells("B5").HorizontalAlignment(), Value(excel::xlRight));
    for (const char* no_formula : {"B4", "B5", "C9"}) {
        cells("B5").HorizontalAlignment(excel::xlGeneral);
        cells("C9").Select();
        press(std::string(no_formula) + ",B3", "55");
        EXPECT_EQ(formula("B3"), "=IF(ISERROR(A3), \"NA\", A3)") << no_formula;
    }
}

TEST_F(CellContentCommands, ArrayFormulasChangeWhollyOrNotAtAll) {
    automation::put(*cells("B2:B4").object(), "FormulaArray", "=C2:C4*2");
    cells("D2:D4").Formula("=E2");
    cells("D3").NumberFormat("@");
    press("D2:D4,B2:B3", "55");
    EXPECT_EQ(formula("B2"), "=C2:C4*2");
    EXPECT_EQ(formula("D2"), "=IF(ISERROR(E2), \"NA\", E2)");
    EXPECT_EQ(formula("D3"), "=E3") << "what is formatted as text would no longer be a formula";
    press("B2:B4", "55");
    EXPECT_EQ(formula("B4"), "=IF(ISERROR(C2:C4*2), \"NA\", C2:C4*2)");
    EXPECT_EQ(automation::get(*cells("B3").object(), "HasArray"), Value(true));
}

TEST_F(CellContentCommands, AFormulaThatGetsTooLongStaysAndTheOthersChange) {
    std::string sum = "=A1";
    while (sum.size() < 5000) sum += "+A1";
    cells("B2:B20").Formula("=A2");
    cells("B7").Formula(sum);
    press("B2:B20", "55");
    EXPECT_EQ(formula("B7"), sum);
    EXPECT_EQ(formula("B6"), "=IF(ISERROR(A6), \"NA\", A6)");
    EXPECT_EQ(formula("B20"), "=IF(ISERROR(A20), \"NA\", A20)");
}

// The rules cell by cell, as they read.
void separate_cell(const excel::Range& cell) {
    if (cell.Formula() == Value("------")) {
        cell.Formula("");
        cell.RowHeight(12.75);
        return;
    }
    cell.Formula("'------");
    cell.Font().Color(0);
    cell.HorizontalAlignment(excel::xlRight);
    cell.RowHeight(6);
}

void trap_cell(const excel::Range& cell, bool wrap) {
    const std::string text = automation::to_text(cell.Formula());
    const bool wrapped = text.starts_with("=IF(ISERROR(");
    if (cell.HasFormula() != Value(true) || wrapped == wrap) return;
    const std::string inner = wrap ? text.substr(1) : text.substr(12, text.find("), \"NA\"") - 12);
    cell.Formula(wrap ? "=IF(ISERROR(" + inner + "), \"NA\", " + inner + ")" : "=" + inner);
}

TEST_F(CellContentCommands, BlocksEndAsCellByCell) {
    const char* const contents[] = {"",        "7",    "=A1+1", "=IF(ISERROR($A$1), \"NA\", $A$1)",
                                    "'------", "text", "'=A1",  "=B2&\"x\""};
    const char* const selections[] = {"A1:F6", "B2:D5", "A1:B4,C2:F3", "B2:C4,C3:D5",
                                      "C:D",   "2:3",   "E5",          "A1,C3,E5:F6"};
    for (const char* request : {"55", "57"}) {
        for (unsigned seed = 1; seed <= 30; ++seed) {
            SCOPED_TRACE(std::string(request) + " seed " + std::to_string(seed));
            const std::string selection = selections[seed % 8];
            const auto fill = [&] {
                std::mt19937 random(seed);
                automation::call(*cells("1:1048576").object(), "Clear");
                cells("1:9").RowHeight(15);
                for (std::int32_t row = 1; row <= 6; ++row) {
                    for (std::int32_t column = 1; column <= 6; ++column) {
                        const excel::Range cell = cells("A1").Resize(6, 6).Cells(row, column);
                        cell.Formula(contents[random() % (seed % 3 == 0 ? 2 : 8)]);
                        if (random() % 9 == 0) cell.Formula("'------");
                    }
                }
                cells("F6").Value(1);
            };
            fill();
            const excel::Range selected = cells(selection);
            const bool wrap = !automation::to_text(selected.Cells(1, 1).Formula()).starts_with("=IF(ISERROR(");
            const bool runs = request == std::string("57") || selected.Cells(1, 1).HasFormula() == Value(true);
            for (std::int32_t i = 1; i <= selected.Areas().Count() && runs; ++i) {
                const excel::Range area = selected.Areas().Item(i);
                const bool whole = area.CountLarge() > 1000;
                const excel::Range part = whole ? application.Intersect(area, area.Worksheet().UsedRange()) : area;
                for (std::int32_t row = 1; row <= part.Rows().Count(); ++row) {
                    for (std::int32_t column = 1; column <= part.Columns().Count(); ++column) {
                        if (request == std::string("57")) {
                            separate_cell(part.Cells(row, column));
                        } else {
                            trap_cell(part.Cells(row, column), wrap);
                        }
                    }
                }
            }
            if (runs && wrap && request == std::string("55")) selected.HorizontalAlignment(excel::xlRight);
            const auto expected = picture(8, 8);
            fill();
            press(selection, request);
            EXPECT_EQ(picture(8, 8), expected);
        }
    }
}

TEST_F(CellContentCommands, ASeparatorLeavesWhatAMergeCoversAlone) {
    cells("B2:C2").MergeCells(true);
    press("B2:D2", "57");
    EXPECT_EQ(formula("B2") + "|" + formula("C2") + "|" + formula("D2"), "------||------");
    EXPECT_EQ(cells("B2").RowHeight(), Value(6.0));
    press("B2:D2", "57");
    EXPECT_EQ(formula("B2") + formula("D2"), "");
    EXPECT_EQ(cells("B2").RowHeight(), Value(12.75));
}

TEST_F(CellContentCommands, TenThousandCellsCostWhatAHundredDo) {
    constexpr std::string_view few = "B2:K11";
    constexpr std::string_view many = "B20:CW119";
    cells(few).Formula("=A1*2");
    cells(many).Formula("=A1*2");
    for (const char* request : {"55", "55", "2", "57", "57"}) {
        const auto hundred = calls_of(few, request);
        EXPECT_LE(calls_of(many, request), hundred + 12) << request;
        EXPECT_LT(hundred, 250) << request;
    }
}

}  // namespace
}  // namespace kestrune::styles
