#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "formula/A1.h"
#include "formula/Edit.h"
#include "formula/SharedEdit.h"
#include "formula/Shift.h"

namespace kestrune::formula {
namespace {

using Kind = Edit::Kind;

struct Case {
    const char* before;
    Edit edit;
    const char* after;
};

TEST(StructureEdit, NamesKeepTheDistanceOfWhatIsRelative) {
    const Case cases[] = {
        {"Sheet1!$A$5:$B$9", {Kind::insert_rows, "Sheet1", 6, 2}, "Sheet1!$A$5:$B$11"},
        {"Sheet1!A5+Sheet1!$A5+Sheet1!A$5", {Kind::insert_rows, "Sheet1", 2, 1}, "Sheet1!A5+Sheet1!$A5+Sheet1!A$6"},
        {"Sheet1!$A$1:A9", {Kind::delete_rows, "Sheet1", 1, 1}, "Sheet1!$A$1:A9"},
        {"Sheet1!$A$5,Sheet1!$C$8", {Kind::delete_rows, "Sheet1", 5, 1}, "Sheet1!#REF!,Sheet1!$C$7"},
        {"Sheet1!$B:$B,Sheet1!$2:$2", {Kind::insert_columns, "Sheet1", 1, 1}, "Sheet1!$C:$C,Sheet1!$2:$2"},
        {"Sheet2!$A$5*0.5", {Kind::insert_rows, "Sheet1", 1, 1}, "Sheet2!$A$5*0.5"},
    };
    for (const auto& [before, edit, after] : cases) EXPECT_EQ(adjust_name_for_edit(before, edit), after) << before;
}

TEST(StructureEdit, RulesFollowMostOfTheirCells) {
    struct Rule {
        const char* before;
        std::vector<Area> areas;
        Edit edit;
        const char* after;
    };
    const std::vector<Area> down{{5, 4, 20, 4}};
    const Rule cases[] = {
        // The row above, wherever between the cells a row comes in or goes.
        {"D4<>D5", down, {Kind::insert_rows, "S", 5, 1}, "D5<>D6"},
        {"D4<>D5", down, {Kind::insert_rows, "S", 12, 1}, "D4<>D5"},
        {"D4<>D5", down, {Kind::insert_rows, "S", 20, 1}, "D4<>D5"},
        {"D4<>D5", down, {Kind::insert_rows, "S", 1, 3}, "D7<>D8"},
        {"D4<>D5", down, {Kind::delete_rows, "S", 5, 2}, "D4<>D5"},
        {"D4<>D5", down, {Kind::delete_rows, "S", 4, 1}, "D3<>D4"},
        // Every cell means the column that moves away from it.
        {"$C5>B5", down, {Kind::insert_columns, "S", 4, 1}, "$C5>B5"},
        {"$C5>B5", down, {Kind::insert_columns, "S", 3, 1}, "$D5>B5"},
        {"$C5>B5", down, {Kind::delete_columns, "S", 3, 1}, "#REF!>B5"},
        {"$H$2", down, {Kind::insert_rows, "S", 2, 1}, "$H$3"},
        {"Other!$A$1:$A$9", down, {Kind::insert_rows, "Other", 3, 1}, "Other!$A$1:$A$10"},
        {"Other!D5", down, {Kind::insert_rows, "Other", 1, 1}, "Other!D6"},
        {"D5>0", {{5, 4, 6, 4}}, {Kind::delete_rows, "S", 5, 1}, "D5>0"},
    };
    for (const auto& [before, areas, edit, after] : cases)
        EXPECT_EQ(adjust_rule_for_edit(before, "S", areas, edit), after) << before << " at " << edit.first;
}

TEST(StructureEdit, OtherWorkbooksFollowToo) {
    const Edit edit{Kind::insert_rows, "Sheet1", 2, 1, {"1", "C:\\models\\Model.xlsx"}};
    EXPECT_EQ(adjust_for_edit("[1]Sheet1!A5+[2]Sheet1!A5+[Model.xlsx]Sheet1!A5+Sheet1!A5+A5", "Sheet1", edit),
              "[1]Sheet1!A6+[2]Sheet1!A5+[Model.xlsx]Sheet1!A6+Sheet1!A5+A5");
    EXPECT_EQ(adjust_for_edit("'C:\\old\\[Model.xlsx]Sheet1'!A5+'C:\\models\\[Model.xlsx]Sheet1'!A5", "Sheet1", edit),
              "'C:\\old\\[Model.xlsx]Sheet1'!A5+'C:\\models\\[Model.xlsx]Sheet1'!A6");
}

// Cells carry numbers from the sheet before to the sheet after: what an area held, and only the bounds of that, is
// what it holds then.
class Oracle {
  public:
    explicit Oracle(const Edit& edit) : edit_(edit) {}

    // The row or column, 1-based, where a former one stands; 0 when it is gone.
    [[nodiscard]] std::int32_t now(std::int32_t line) const {
        std::vector<std::int32_t> lines;  // by present place, the former one; 0 for an inserted one
        for (std::int32_t i = 1; i <= 60; ++i) lines.push_back(i);
        const auto at = lines.begin() + (edit_.first - 1);
        if (edit_.inserts())
            lines.insert(at, static_cast<std::size_t>(edit_.count), 0);
        else
            lines.erase(at, at + edit_.count);
        const auto found = std::find(lines.begin(), lines.end(), line);
        return found == lines.end() ? 0 : static_cast<std::int32_t>(found - lines.begin()) + 1;
    }

    [[nodiscard]] std::optional<Area> area(const Area& before) const {
        std::set<std::int32_t> left;
        const bool rows = edit_.of_rows();
        for (std::int32_t i = rows ? before.first_row : before.first_column;
             i <= (rows ? before.last_row : before.last_column); ++i) {
            if (const auto line = now(i); line != 0) left.insert(line);
        }
        if (left.empty()) return std::nullopt;
        Area after = before;
        (rows ? after.first_row : after.first_column) = *left.begin();
        (rows ? after.last_row : after.last_column) = *left.rbegin();
        return after;
    }

  private:
    Edit edit_;
};

class RandomEdits : public testing::Test {
  protected:
    std::int32_t pick(std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(random_);
    }
    Edit edit() { return {static_cast<Kind>(pick(0, 3)), pick(0, 3) == 0 ? "Other" : "Own", pick(1, 25), pick(1, 4)}; }
    Reference reference() {
        Reference r;
        r.range = pick(0, 1) == 1;
        r.first_row = {pick(1, 30), pick(0, 1) == 1};
        r.first_column = {pick(1, 30), pick(0, 1) == 1};
        r.last_row = r.range ? Coordinate{pick(r.first_row.value, 30), pick(0, 1) == 1} : r.first_row;
        r.last_column = r.range ? Coordinate{pick(r.first_column.value, 30), pick(0, 1) == 1} : r.first_column;
        return r;
    }
    std::mt19937 random_{20240607};
};

TEST_F(RandomEdits, FormulasHoldTheSameCells) {
    for (int round = 0; round < 4000; ++round) {
        const Edit change = edit();
        const Oracle oracle(change);
        std::string before = "SUM(";
        std::string expected = before;
        const int uses = pick(1, 4);
        for (int i = 0; i < uses; ++i) {
            const bool other = pick(0, 1) == 1;
            Reference r = reference();
            before += other ? "Other!" : "";
            expected += other ? "Other!" : "";
            append_a1(before, r);
            if ((other ? "Other" : "Own") == change.sheet) {
                const auto area = oracle.area(area_of(r));
                if (area) {
                    r.first_row.value = area->first_row;
                    r.first_column.value = area->first_column;
                    r.last_row.value = area->last_row;
                    r.last_column.value = area->last_column;
                    append_a1(expected, r);
                } else {
                    expected += "#REF!";
                }
            } else {
                append_a1(expected, r);
            }
            before += i + 1 < uses ? "," : ")";
            expected += i + 1 < uses ? "," : ")";
        }
        ASSERT_EQ(adjust_for_edit(before, "Own", change), expected)
            << before << ", kind " << static_cast<int>(change.kind) << " at " << change.first << " x" << change.count;
    }
}

std::string without_dollars(std::string text) {
    std::erase(text, '$');
    return text;
}

// A group's members, each filled out and adjusted by itself, are what the group's forms say, and members of one form
// have one formula.
TEST_F(RandomEdits, SharedFormulasStayWhatTheyAreInEachCell) {
    for (int round = 0; round < 1500; ++round) {
        const Edit change = edit();
        const Oracle oracle(change);
        std::string text;
        append_a1(text, reference());
        text += "*Other!";
        append_a1(text, reference());
        const Position anchor{pick(1, 20), pick(1, 20)};
        SharedEdit shared(text, anchor, "Own", change);
        struct First {
            std::string text;
            Position at;
        };
        std::map<std::vector<std::int64_t>, First> firsts;
        for (int member = 0; member < 12; ++member) {
            const Position before{anchor.row + member, anchor.column + member % 2};
            Position after = before;
            if (change.sheet == "Own")
                (change.of_rows() ? after.row : after.column) =
                    oracle.now(change.of_rows() ? before.row : before.column);
            if (after.row == 0 || after.column == 0) continue;
            const std::string alone = adjust_for_edit(
                shift_formula(text, before.row - anchor.row, before.column - anchor.column, OffSheet::wrap), "Own",
                change);
            ASSERT_EQ(shared.text(before), alone);
            const First& first = firsts.try_emplace(shared.form(before, after), First{alone, after}).first->second;
            // Which of two equal columns has the $ is nothing that the cells tell.
            ASSERT_EQ(without_dollars(shift_formula(first.text, after.row - first.at.row,
                                                    after.column - first.at.column, OffSheet::wrap)),
                      without_dollars(shift_formula(alone, 0, 0, OffSheet::wrap)))
                << text;
        }
    }
}

}  // namespace
}  // namespace kestrune::formula
