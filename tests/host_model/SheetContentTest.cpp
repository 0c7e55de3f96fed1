#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/model/ModelError.h"
#include "host_model/SheetPicture.h"

namespace kestrune::host {
namespace {

using ::testing::ElementsAre;

class SheetContent : public ::testing::Test {
  protected:
    // A1:A4 hold =B1*2 to =B4*2 as one shared group, C1:C3 an array, D1 its own formula.
    void load(Sheet& target) {
        Formula shared;
        shared.kind = Formula::Kind::Shared;
        shared.text = "B1*$B$2";
        shared.anchor = {1, 1};
        shared.reach = {1, 1, 2, 1};  // too small, as some programs write it
        const auto group = target.add_loaded_formula(shared);
        Formula array;
        array.kind = Formula::Kind::Array;
        array.text = "B1:B3*2";
        array.anchor = {1, 3};
        array.reach = {1, 3, 3, 3};
        const auto block = target.add_loaded_formula(array);
        for (std::int32_t row = 1; row <= 4; ++row) {
            Cell cell;
            cell.row = row;
            cell.kind = CellKind::Number;
            cell.number = row;
            if (row < 4) {
                cell.formula = row == 1 ? block : 0;
                cell.flags = row == 1 ? metadata : std::uint8_t{0};
                target.append_loaded(3, cell);
            }
            cell.flags = 0;
            cell.formula = group;
            target.append_loaded(1, cell);
        }
    }
    Sheet& loaded() {
        Sheet& sheet = workbook.add_sheet("Sheet1");
        sheet.load_with([this](Sheet& target) { load(target); });
        return sheet;
    }
    static bool rewritten(Sheet& sheet, Position at) { return (sheet.find(at)->flags & Cell::content_changed) != 0; }

    Workbook workbook;
    std::uint8_t metadata = 0;
};

TEST_F(SheetContent, LoadsOnceAtTheFirstNeed) {
    int loads = 0;
    Sheet& sheet = workbook.add_sheet("Sheet1");
    sheet.load_with([&](Sheet& target) {
        ++loads;
        Cell cell;
        for (const std::int32_t row : {7, 2, 7}) {
            cell.row = row;
            cell.number += 1;
            cell.kind = CellKind::Number;
            target.append_loaded(2, cell);
        }
        if (loads == 1) throw std::runtime_error("broken");
    });
    EXPECT_ANY_THROW(sheet.ensure_loaded());
    EXPECT_FALSE(sheet.loaded());
    EXPECT_EQ(sheet.used_area(), (Area{2, 2, 7, 2}));
    EXPECT_EQ(sheet.stored_cells(), 2) << "half a load stayed, or a row twice";
    EXPECT_EQ(sheet.content_at({7, 2}).number, 3) << "the last of twins counts";
    EXPECT_EQ(loads, 2);
    EXPECT_FALSE(sheet.changed());
}

TEST_F(SheetContent, ReadsFormulasOfGroups) {
    Sheet& sheet = loaded();
    EXPECT_EQ(sheet.formula_at({1, 1}), "B1*$B$2");
    EXPECT_EQ(sheet.formula_at({4, 1}), "B4*$B$2");
    EXPECT_EQ(sheet.formula_at({3, 3}), "B1:B3*2");
    EXPECT_EQ(sheet.content_at({3, 1}).number, 3);
    EXPECT_EQ(sheet.formula_record({1, 2}), nullptr);
}

TEST_F(SheetContent, KeepsAGroupsFormulasWhenItsFirstGoes) {
    Sheet& sheet = loaded();
    sheet.set_content({3, 1}, CellContent::of("x"));
    EXPECT_FALSE(rewritten(sheet, {4, 1}));
    sheet.set_content({1, 1}, CellContent::blank());
    EXPECT_TRUE(rewritten(sheet, {2, 1}));
    EXPECT_TRUE(rewritten(sheet, {4, 1})) << "a member beyond the stated reach";
    EXPECT_EQ(sheet.formula_at({2, 1}), "B2*$B$2");
    EXPECT_EQ(sheet.formula_at({3, 1}), "");
    EXPECT_EQ(sheet.formula_at({1, 1}), "");
}

TEST_F(SheetContent, LetsNobodyChangePartOfAnArray) {
    Sheet& sheet = loaded();
    for (const Position at : {Position{1, 3}, Position{3, 3}}) {
        EXPECT_THROW(sheet.set_content(at, CellContent::of(1.0)), ModelError);
        EXPECT_THROW(sheet.set_formula(at, "1"), ModelError);
    }
    EXPECT_THROW(sheet.clear_content({1, 1, 2, 3}), ModelError);
    EXPECT_THROW(sheet.set_array_formula({3, 3, 5, 3}, "1"), ModelError);
    EXPECT_THROW(sheet.merge({1, 2, 3, 4}), ModelError);
    EXPECT_FALSE(sheet.changed());
    EXPECT_EQ(sheet.content_at({1, 1}).number, 1) << "cleared before the refusal";
    sheet.clear_content({1, 3, 3, 3});
    EXPECT_EQ(sheet.formula_at({2, 3}), "");
    sheet.set_content({2, 3}, CellContent::of(5.0));
    EXPECT_EQ(sheet.content_at({2, 3}).number, 5);
}

TEST_F(SheetContent, TakesWhatADynamicArraySpilledAwayWithIt) {
    metadata = Cell::has_metadata;
    Sheet& sheet = loaded();
    EXPECT_EQ(sheet.formula_at({2, 3}), "");
    sheet.set_content({1, 3}, CellContent::of(9.0));
    EXPECT_EQ(sheet.content_at({3, 3}).kind, CellKind::Blank);
    EXPECT_EQ(sheet.find({1, 3})->flags, Cell::content_changed);
}

TEST_F(SheetContent, WritesAndMarksOnlyWhatDiffers) {
    Sheet& sheet = workbook.add_sheet("Sheet1");
    const Position at{2, 2};
    sheet.set_content(at, CellContent::blank());
    EXPECT_EQ(sheet.stored_cells(), 0);
    const CellContent contents[] = {CellContent::of(1.5), CellContent::of(true), CellContent::of(CellError::NA),
                                    CellContent::of("text"), CellContent::blank()};
    for (const CellContent& content : contents) {
        sheet.cells_changed = false;
        sheet.set_content(at, content);
        EXPECT_TRUE(sheet.cells_changed);
        sheet.cells_changed = false;
        sheet.set_content(at, sheet.content_at(at));
        EXPECT_FALSE(sheet.cells_changed);
        const CellContent back = sheet.content_at(at);
        EXPECT_TRUE(back.kind == content.kind && back.number == content.number && back.text == content.text &&
                    back.boolean == content.boolean);
    }
    workbook.recalculate_on_load = false;
    sheet.set_content(at, CellContent::of(1.0));
    sheet.set_formula(at, "A1+1");
    EXPECT_EQ(sheet.content_at(at).kind, CellKind::Blank) << "a new formula has no value yet";
    EXPECT_TRUE(workbook.recalculate_on_load);
    sheet.cells_changed = false;
    sheet.set_formula(at, "A1+1");
    EXPECT_FALSE(sheet.cells_changed);
    sheet.set_content(at, CellContent::blank());
    EXPECT_EQ(sheet.formula_at(at), "");
}

TEST_F(SheetContent, GivesNewCellsTheFormatOfTheirPlace) {
    add_styles(workbook);
    Sheet& sheet = workbook.add_sheet("Sheet1");
    sheet.restyle({1, 2, formula::max_rows, 2}, [](StyleId) { return 1U; });
    sheet.restyle({3, 1, 3, formula::max_columns}, [](StyleId) { return 2U; });
    for (std::int32_t row = 1; row <= 3; ++row) sheet.set_content({row, 2}, CellContent::of(1.0));
    EXPECT_EQ(picture(sheet, 3, 2), " 0 1*\n 0 1*\n-2 2*\n");
}

TEST_F(SheetContent, ReadsRichTextAsItsTextButWritesItPlain) {
    Sheet& sheet = workbook.add_sheet("Sheet1");
    const auto rich = workbook.strings.add({"bold", "<r/>"});
    sheet.load_with([&](Sheet& target) {
        Cell cell;
        cell.row = 1;
        cell.kind = CellKind::String;
        cell.string = rich;
        target.append_loaded(1, cell);
    });
    EXPECT_EQ(sheet.content_at({1, 1}).text, "bold");
    sheet.set_content({1, 1}, CellContent::of("bold"));
    EXPECT_TRUE(workbook.strings[sheet.find({1, 1})->string].rich.empty());
}

TEST_F(SheetContent, VisitsRowByRowInOrder) {
    Sheet& sheet = workbook.add_sheet("Sheet1");
    for (const Position at : {Position{5, 1}, Position{1, 3}, Position{5, 4}, Position{2, 1}, Position{5, 3},
                              Position{2, 4}, Position{9, 2}, Position{1, 9}})
        sheet.set_content(at, CellContent::of(1.0));
    std::vector<Position> seen;
    sheet.visit_cells({1, 1, 5, 4}, true, [&](Position at, const Cell&) { seen.push_back(at); });
    EXPECT_THAT(seen, ElementsAre(Position{1, 3}, Position{2, 1}, Position{2, 4}, Position{5, 1}, Position{5, 3},
                                  Position{5, 4}));
    seen.clear();
    sheet.visit_cells({1, 1, 5, 4}, false, [&](Position at, const Cell&) { seen.push_back(at); });
    EXPECT_THAT(seen, ElementsAre(Position{2, 1}, Position{5, 1}, Position{1, 3}, Position{5, 3}, Position{2, 4},
                                  Position{5, 4}));
}

TEST_F(SheetContent, UsesFormattedCellsAndRowsButNotColumns) {
    add_styles(workbook);
    Sheet& sheet = workbook.add_sheet("Sheet1");
    const auto one = [](StyleId) { return 1U; };
    EXPECT_EQ(sheet.used_area(), Area{});
    sheet.restyle({1, 5, formula::max_rows, 5}, one);
    EXPECT_EQ(sheet.used_area(), Area{});
    sheet.set_content({4, 4}, CellContent::of(1.0));
    sheet.restyle({6, 3, 6, 3}, one);
    EXPECT_EQ(sheet.used_area(), (Area{4, 3, 6, 4}));
    sheet.set_row_height(9, 9, 30);
    EXPECT_EQ(sheet.used_area(), (Area{4, 3, 9, 4}));
    sheet.clear_content(Area::sheet());
    EXPECT_EQ(sheet.used_area(), (Area{6, 3, 9, 3})) << "an emptied cell without a format of its own";
}

TEST(StringTable, FindsPlainTextsOfTheFile) {
    StringTable strings;
    strings.load_with([](StringTable& table) {
        for (const char* text : {"a", "b", "a"}) table.add_loaded({text, {}});
        table.add_loaded({"rich", "<r/>"});
    });
    EXPECT_EQ(strings.intern("b"), 1U);
    EXPECT_EQ(strings.intern("a"), 0U);
    EXPECT_EQ(strings.intern("rich"), 4U);
    EXPECT_EQ(strings.intern("rich"), 4U);
    EXPECT_EQ(strings.loaded_count(), 4U);
    EXPECT_EQ(strings[99].text, "");
}

}  // namespace
}  // namespace kestrune::host
