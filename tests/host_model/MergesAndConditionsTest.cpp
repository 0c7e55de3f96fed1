#include <gtest/gtest.h>

#include "formula/AreaCut.h"
#include "host/model/ConditionalMatch.h"
#include "host/model/Workbook.h"

namespace kestrune::host {
namespace {

TEST(Merges, KeepTheUpperLeftContent) {
    struct Case {
        const char* name;
        std::vector<Position> texts;
        const char* kept;
    };
    const Case cases[] = {
        {"in the corner", {{2, 2}, {2, 3}, {3, 2}}, "2,2"},
        {"beside an empty corner", {{3, 2}, {2, 4}}, "2,4"},
        {"nothing", {}, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Workbook workbook;
        Sheet& sheet = workbook.add_sheet("Sheet1");
        for (const Position at : c.texts)
            sheet.set_content(at, CellContent::of(std::to_string(at.row) + "," + std::to_string(at.column)));
        sheet.set_content({4, 2}, CellContent::of("below"));
        sheet.merge({2, 2, 3, 4});
        EXPECT_EQ(sheet.content_at({2, 2}).text, c.kept);
        for (const Position at : {Position{2, 3}, Position{2, 4}, Position{3, 2}})
            EXPECT_EQ(sheet.content_at(at).kind, CellKind::Blank);
        EXPECT_EQ(sheet.content_at({4, 2}).text, "below");
    }
}

TEST(Merges, NeverOverlap) {
    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    sheet.merge({1, 1, 1, 2});
    sheet.merge({5, 1, 5, 2});
    sheet.merge({1, 2, 2, 3});
    EXPECT_EQ(sheet.merges().size(), 2U);
    EXPECT_EQ(sheet.merge_at({2, 3}), (Area{1, 2, 2, 3}));
    EXPECT_FALSE(sheet.merge_at({1, 1}));
    sheet.merges_changed = false;
    sheet.merge({1, 2, 2, 3});
    sheet.merge({9, 9, 9, 9});
    sheet.unmerge({3, 1, 4, 9});
    EXPECT_FALSE(sheet.merges_changed);
    sheet.unmerge({2, 2, 2, 2});
    EXPECT_EQ(sheet.merges().size(), 1U);
}

TEST(AreaCut, LeavesEveryOtherCellOnce) {
    const Area area{2, 2, 5, 5};
    for (const Area& hole :
         {Area{1, 1, 2, 2}, Area{3, 3, 4, 4}, Area{2, 1, 3, 9}, Area{1, 5, 9, 9}, Area{1, 1, 9, 9}, Area{7, 7, 8, 8}}) {
        std::int64_t cells = 0;
        for (const Area& piece : area_without(area, hole)) {
            EXPECT_TRUE(area.contains(piece));
            EXPECT_FALSE(piece.intersection(hole));
            cells += piece.cells();
        }
        EXPECT_EQ(cells, area.cells() - (area.intersection(hole) ? area.intersection(hole)->cells() : 0));
    }
}

TEST(ConditionalFormats, AreCutOutOfCells) {
    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    ConditionalFormat format;
    format.areas = {{1, 1, 9, 1}, {1, 3, 1, 3}};
    format.rules.resize(1);
    format.rules[0].formulas = {"$B1>A$1"};
    sheet.conditional_formats() = {format, format};
    sheet.conditional_formats()[1].areas = {{3, 3, 3, 3}};
    sheet.delete_conditional_formats({20, 1, 30, 9});
    EXPECT_FALSE(sheet.conditional_formats_changed);
    sheet.delete_conditional_formats({1, 1, 3, 9});
    EXPECT_TRUE(sheet.conditional_formats_changed);
    ASSERT_EQ(sheet.conditional_formats().size(), 1U);
    const ConditionalFormat& left = sheet.conditional_formats()[0];
    EXPECT_EQ(left.areas, (std::vector<Area>{{4, 1, 9, 1}}));
    EXPECT_EQ(left.rules[0].formulas[0], "$B4>A$1") << "written for the corner that is left";
}

struct MatchCase {
    const char* type;
    const char* operator_name;
    std::vector<std::string> formulas;
    const char* shown;  // of A1:A8: + holds, . does not, ? not to be known
};

// 1: 5, 2: -1, 3: "Total", 4: blank, 5: #N/A, 6: TRUE, 7: 5, 8: a formula without a value
const MatchCase match_cases[] = {
    {"cellIs", "greaterThan", {"4"}, "+.+..++?"},
    {"cellIs", "lessThan", {"0"}, ".+.....?"},
    {"cellIs", "equal", {"0"}, "...+...?"},
    {"cellIs", "equal", {"\"TOTAL\""}, "..+....?"},
    {"cellIs", "notEqual", {"5"}, ".+++.+.?"},
    {"cellIs", "between", {"5", "-1"}, "++.+..+?"},
    {"cellIs", "notBetween", {"-1", "4%"}, "+.+..++?"},
    {"cellIs", "equal", {"$B$1"}, "+.....+?"},
    {"cellIs", "equal", {"B1"}, "+..+...?"},
    {"cellIs", "equal", {"SUM(B1)"}, "????????"},
    {"containsText", "containsText", {"NOT(ISERROR(SEARCH(\"ota\",A1)))"}, "..+....?"},
    {"notContainsText", "notContains", {"ISERROR(SEARCH(\"ota\",A1))"}, "++.++++?"},
    {"beginsWith", "beginsWith", {"LEFT(A1,LEN(\"-\"))=\"-\""}, ".+.....?"},
    {"endsWith", "endsWith", {"RIGHT(A1,LEN($B$1))=$B$1"}, "+.....+?"},
    {"containsBlanks", "", {"LEN(TRIM(A1))=0"}, "...+...?"},
    {"notContainsErrors", "", {"NOT(ISERROR(A1))"}, "++++.++?"},
    {"duplicateValues", "", {}, "+.....+?"},
    {"uniqueValues", "", {}, ".++.++.?"},
    {"expression", "", {"TRUE"}, "++++++++"},
    {"expression", "", {"$A1>=Other!$B$1"}, "+.+..++?"},
    {"expression", "", {"ISODD(A1)"}, "????????"},
    {"colorScale", "", {}, "????????"},
};

TEST(ConditionalMatch, KnowsWhatNeedsNoCalculation) {
    for (const MatchCase& c : match_cases) {
        Workbook workbook;
        Sheet& sheet = workbook.add_sheet("Sheet1");
        workbook.add_sheet("Other").set_content({1, 2}, CellContent::of(5.0));
        const CellContent contents[] = {CellContent::of(5.0), CellContent::of(-1.0),          CellContent::of("Total"),
                                        CellContent::blank(), CellContent::of(CellError::NA), CellContent::of(true),
                                        CellContent::of(5.0)};
        for (std::int32_t row = 1; row <= 7; ++row) sheet.set_content({row, 1}, contents[row - 1]);
        sheet.set_formula({8, 1}, "1+1");
        sheet.set_content({1, 2}, CellContent::of(5.0));
        ConditionalFormat format;
        format.areas = {{1, 1, 8, 1}};
        ConditionalRule rule;
        rule.type = c.type;
        rule.operator_name = c.operator_name;
        rule.formulas = c.formulas;
        rule.differential = workbook.styles.differentials.append({});
        format.rules = {rule};
        sheet.conditional_formats() = {format};
        ConditionalMatcher matcher(sheet);
        std::string shown;
        for (std::int32_t row = 1; row <= 8; ++row) {
            const ConditionalMatch match = matcher.at({row, 1});
            shown += !match.complete ? '?' : match.formats.empty() ? '.' : '+';
        }
        EXPECT_EQ(shown, c.shown) << c.type << ' ' << c.operator_name << ' '
                                  << (c.formulas.empty() ? "" : c.formulas[0]);
        EXPECT_TRUE(matcher.at({1, 2}).formats.empty());
    }
}

TEST(ConditionalMatch, FollowsPriorityAndStops) {
    Workbook workbook;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    ConditionalFormat format;
    format.areas = {{1, 1, 1, 1}};
    for (const std::int32_t priority : {3, 1, 2}) {
        ConditionalRule rule;
        rule.type = "expression";
        rule.formulas = {"TRUE"};
        rule.priority = priority;
        rule.stop_if_true = priority == 2;
        DifferentialFormat differential;
        differential.number_format = std::to_string(priority);
        rule.differential = workbook.styles.differentials.append(differential);
        format.rules.push_back(rule);
    }
    sheet.conditional_formats() = {format};
    const auto formats = conditional_matches(sheet, {1, 1});
    ASSERT_EQ(formats.size(), 2U);
    EXPECT_EQ(formats[0]->number_format, "1");
    EXPECT_EQ(formats[1]->number_format, "2");
}

}  // namespace
}  // namespace kestrune::host
