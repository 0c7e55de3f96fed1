#include <algorithm>
#include <random>

#include "automation/MemberTable.h"
#include "brxllib/LibraryInHost.h"
#include "brxllib/autocolor/CellClass.h"
#include "brxllib/autocolor/Rectangles.h"
#include "core/bridges/AutoColorSettings.h"
#include "excel/Constants.h"

namespace kestrune::brxllib {
namespace {

constexpr std::int32_t black = 0;
constexpr std::int32_t orange = 0x0080FF;

// A client that wants some colours left alone, and remembers what it was asked.
class Client : public automation::Served<Client> {
  public:
    static const automation::MemberTable& members() {
        static constexpr auto rows =
            automation::member_rows(automation::method<&Client::do_not_auto_color>("DoNotAutoColor", 1, "Color"));
        static constexpr automation::MemberTable table("Client", rows);
        return table;
    }

    std::vector<std::int32_t> respected;
    std::vector<std::int32_t> asked;

  private:
    bool do_not_auto_color(std::int32_t color) {
        asked.push_back(color);
        return std::ranges::find(respected, color) != respected.end();
    }
};

struct AutoColorTest : LibraryInHost {
    AutoColorTest() { library->register_callback(client); }

    [[nodiscard]] automation::Object& service() const { return *library->iAutoColor(); }
    void set(std::string_view property, Value value) const { automation::put(service(), property, std::move(value)); }
    void run(std::string_view address) const { automation::call(service(), "RunRange", {cells(address).object()}); }
    [[nodiscard]] std::int32_t color(std::string_view address, std::string_view sheet = "Sheet1") const {
        return automation::to_integer(cells(address, sheet).Font().Color());
    }
    void paint(std::string_view address, std::int32_t with) const { cells(address).Font().Color(with); }
    // Colours of a selection as Ctrl+Enter fills it.
    void fill(std::string_view address, Value value) const {
        cells(address).Select();
        cells(address).Value(std::move(value));
    }

    std::shared_ptr<Client> client = std::make_shared<Client>();
    AutoColorSettings defaults;
};

TEST_F(AutoColorTest, TheServiceHasTheLibrarysDefaults) {
    core::AutoColorSettings settings = library->auto_color_defaults();
    core::for_each_setting(settings, [&](std::string_view name, const auto& setting) {
        EXPECT_EQ(automation::get(service(), name), Value(setting)) << name;
    });
    EXPECT_EQ(settings.InputColor, 0xFF0000) << "blue";
    EXPECT_EQ(settings.WkbLinkColor, 0x0000FF) << "red";
    settings.FormulaColor = orange;
    settings.bAutoColorText = true;
    library->set_auto_color(settings);
    EXPECT_EQ(automation::get(service(), "FormulaColor"), Value(orange));
    EXPECT_EQ(automation::get(service(), "bAutoColorText"), Value(true));
    EXPECT_EQ(automation::get(*library->iConst(), "FormulaColor"), Value(black)) << "defaults stay";
    EXPECT_EQ(library->auto_color_smart_cycle(),
              automation::to_text(automation::get(*library->iConst(), "AutoColorSmartCycle")));
}

TEST_F(AutoColorTest, CellsGetTheColourOfWhatTheyHold) {
    const struct {
        const char* address;
        Value content;
        std::int32_t expected;
    } rows[] = {
        {"A1", "Revenue", orange},  // texts stay by default
        {"A2", 12.5, defaults.InputColor},
        {"A3", true, defaults.InputColor},
        {"A4", automation::Date{46022}, defaults.InputColor},
        {"A5", "=A2*2", defaults.PartialInputColor},
        {"A6", "=A2+A3", defaults.FormulaColor},
        {"A7", "='Other Sheet'!A1", defaults.WksLinkColor},
        {"A8", "='C:\\m\\[Book.xlsx]S'!A1", defaults.WkbLinkColor},
        {"A9", "=HYPERLINK(\"https://example.com\")", defaults.HyperLinkColor},
        {"A10", "=Far+1", defaults.WksLinkColor},
        {"A11", "'=A2+1", orange},  // a text that looks like a formula
        {"A12", "=5+3", defaults.InputColor},
        {"A13", "", orange},
    };
    book().Names().Add("Far", "='Other Sheet'!$B$2");
    paint("A1:B20", orange);
    for (const auto& row : rows) write(row.address, row.content);
    cells("B1:B3").Select();
    automation::put(*cells("B1:B3").object(), "FormulaArray", "=A2:A4*A6");
    session.active()->model->sheets()[0]->hyperlinks().push_back({{12, 1, 14, 1}, "https://example.com", "", "", ""});
    run("A1:B20");
    for (const auto& row : rows) {
        const bool linked = std::string_view(row.address) == "A12";
        EXPECT_EQ(color(row.address), linked ? defaults.HyperLinkColor : row.expected) << row.address;
    }
    for (const char* cell : {"B1", "B2", "B3"}) EXPECT_EQ(color(cell), defaults.FormulaColor) << cell;
    EXPECT_EQ(color("A14"), orange) << "a link on an empty cell";
    EXPECT_EQ(color("B4"), orange);
    set("bAutoColorHyperlinks", false);
    set("bAutoColorText", true);
    set("bAutoColorDate", false);
    paint("A4", orange);
    run("A:A");
    EXPECT_EQ(color("A12"), defaults.InputColor);
    EXPECT_EQ(color("A9"), defaults.FormulaColor);
    EXPECT_EQ(color("A1"), defaults.InputColor);
    EXPECT_EQ(color("A11"), defaults.InputColor);
    EXPECT_EQ(color("A4"), orange);
}

TEST_F(AutoColorTest, RespectedColoursStayAndAreAskedForOnce) {
    fill("A1:A100", 1.0);
    paint("A10:A20", orange);
    paint("A50", orange);
    paint("A60", 0x123456);
    client->respected = {orange};
    run("A1:A100");
    EXPECT_EQ(color("A1"), defaults.InputColor);
    EXPECT_EQ(color("A60"), defaults.InputColor);
    for (const char* kept : {"A10", "A20", "A50"}) EXPECT_EQ(color(kept), orange) << kept;
    std::ranges::sort(client->asked);
    EXPECT_EQ(client->asked, (std::vector<std::int32_t>{black, orange, 0x123456})) << "each colour once";
    client->respected.clear();
    run("A1:A100");
    EXPECT_EQ(color("A10"), defaults.InputColor) << "the next run asks anew";
}

TEST_F(AutoColorTest, ClientsThatFailOrLeftRespectNothing) {
    write("A1", 1.0);
    library->register_callback(application.object());  // has no DoNotAutoColor
    run("A1");
    EXPECT_EQ(color("A1"), defaults.InputColor);
    library->register_callback(client);
    client->respected = {orange};
    paint("A1", orange);
    library->register_callback(nullptr);
    run("A1");
    EXPECT_EQ(color("A1"), defaults.InputColor);
}

TEST_F(AutoColorTest, UniformCellsCostAHandfulOfCalls) {
    fill("A1:J1000", 7.0);
    const auto small = calls_of([&] { run("A1:A2"); });
    paint("A1:J1000", orange);
    const auto large = calls_of([&] { run("A1:J1000"); });
    EXPECT_LE(large, small + 3) << "redrawing is paused for many cells";
    EXPECT_LE(large, 24);
    EXPECT_EQ(color("A1:J1000"), defaults.InputColor);
    EXPECT_LE(calls_of([&] { run("A1:J1000"); }), large) << "again";
    // Columns of their own, as models are built.
    cells("B1:B1000").Formula("=A1+C1");
    cells("D1:D1000").Formula("='Other Sheet'!A1");
    EXPECT_LE(calls_of([&] { run("A:J"); }), 40);
    EXPECT_TRUE(application.ScreenUpdating());
    EXPECT_EQ(session.active()->model->sheets()[0]->stored_cells(), 10'000) << "no cell came to be";
}

TEST_F(AutoColorTest, FarCellsCostNoMoreThanNearOnes) {
    fill("A1:B3", 1.0);
    write("XFD1048576", "='Other Sheet'!A1");
    EXPECT_LE(calls_of([&] { library->auto_color_worksheet(); }), 60);
    EXPECT_EQ(color("A1:B3"), defaults.InputColor);
    EXPECT_EQ(color("XFD1048576"), defaults.WksLinkColor);
    EXPECT_EQ(color("C1"), black);
}

TEST_F(AutoColorTest, ProtectionKeepsWhatItLocks) {
    host::Sheet& sheet = *session.active()->model->sheets()[0];
    fill("A1:A8", 1.0);
    paint("A1:A8", orange);
    automation::put(*cells("A3,A6:A7").object(), "Locked", false);
    sheet.protection().on = true;
    run("A1:A8");
    for (const char* open : {"A3", "A6", "A7"}) EXPECT_EQ(color(open), defaults.InputColor) << open;
    for (const char* locked : {"A1", "A2", "A4", "A5", "A8"}) EXPECT_EQ(color(locked), orange) << locked;
}

TEST_F(AutoColorTest, SheetsAndWorkbooksAreColouredWhole) {
    write("A1", 1.0);
    cells("C3", "Other Sheet").Value(2.0);
    host::Workbook& model = *session.active()->model;
    model.sheets()[1]->visibility = host::Visibility::Hidden;
    library->auto_color_worksheet();
    EXPECT_EQ(color("A1"), defaults.InputColor);
    EXPECT_EQ(color("C3", "Other Sheet"), black);
    paint("A1", orange);
    model.sheets()[0]->protection().on = true;
    library->auto_color_workbook();
    EXPECT_EQ(color("C3", "Other Sheet"), defaults.InputColor) << "hidden, and behind a protected sheet";
    EXPECT_EQ(color("A1"), orange);
}

TEST_F(AutoColorTest, ChangesAreColouredWhileItIsOn) {
    const std::int64_t untouched = calls_of([&] { write("A1", 1.0); });
    EXPECT_EQ(untouched, calls_of([&] { (void)cells("A1").Formula(); })) << "nobody listens while it is off";
    EXPECT_EQ(color("A1"), black);
    library->toggle_auto_color();
    EXPECT_EQ(automation::get(service(), "bAutoColorOn"), Value(true));
    write("A1", 2.0);
    write("B1:B2", "='Other Sheet'!A1");
    EXPECT_EQ(color("A1"), defaults.InputColor);
    EXPECT_EQ(color("B1:B2"), defaults.WksLinkColor);
    write("A1", "=B1");
    EXPECT_EQ(color("A1"), defaults.FormulaColor) << "as the content changes, so does the colour";
    automation::put(*application.object(), "EnableEvents", false);
    write("A1", 3.0);
    EXPECT_EQ(color("A1"), defaults.FormulaColor);
    automation::put(*application.object(), "EnableEvents", true);
    library->toggle_auto_color();
    write("A1", 4.0);
    EXPECT_EQ(color("A1"), defaults.FormulaColor);
    set("bAutoColorOn", true);
    library->set_application(nullptr);
    write("A1", 5.0);
    EXPECT_EQ(color("A1"), defaults.FormulaColor) << "without an application there is nobody to hear";
    library->set_application(application.object());
    write("A1", 6.0);
    EXPECT_EQ(color("A1"), defaults.InputColor);
}

TEST_F(AutoColorTest, CtrlEnterHasItsOwnSwitch) {
    library->update_ctrl_enter(false, true);
    fill("A1:B2", 1.0);
    EXPECT_EQ(color("A1:B2"), defaults.InputColor) << "a fill counts while it is off";
    cells("D1:D2").Value(1.0);
    cells("E1").Select();
    write("E1", 1.0);
    EXPECT_EQ(color("D1:E2"), black) << "nothing else does";
    library->toggle_auto_color();
    fill("F1:F2", 1.0);
    EXPECT_EQ(color("F1:F2"), black) << "left out while it is on";
    cells("D1:D2").Value(2.0);
    EXPECT_EQ(color("D1:D2"), defaults.InputColor);
    session.cut_copy_mode = 1;
    fill("G1:G2", 1.0);
    EXPECT_EQ(color("G1:G2"), defaults.InputColor) << "pasted cells are no fill";
}

// Random sheets, coloured at once and cell by cell, look the same.
TEST_F(AutoColorTest, ResultIsThatOfTheRuleForOneCell) {
    std::mt19937 random(20261123);
    const auto pick = [&](std::size_t count) {
        return static_cast<std::int32_t>(std::uniform_int_distribution<std::size_t>(0, count - 1)(random));
    };
    const Value contents[] = {"",
                              "",
                              "text",
                              1.0,
                              automation::Date{46022},
                              "=R1C1+RC[1]",
                              "=R1C1*1.5",
                              "='Other Sheet'!RC",
                              "=[1]S!RC",
                              "'=A1",
                              "=HYPERLINK(\"x\")",
                              "=2*3"};
    const std::int32_t fonts[] = {black, orange, 0x123456, defaults.InputColor, defaults.WksLinkColor};
    client->respected = {orange};
    constexpr std::int32_t rows = 23;
    constexpr std::int32_t columns = 9;
    for (int round = 0; round < 30; ++round) {
        set("bAutoColorText", pick(2) == 0);
        set("bAutoColorDate", pick(2) == 0);
        automation::call(*cells("A1:Z40").object(), "Clear");
        for (int stroke = 0; stroke < 60; ++stroke) {
            const std::int32_t row = pick(rows) + 1;
            const std::int32_t column = pick(columns) + 1;
            const formula::Area area{row, column, std::min(rows, row + pick(6)), std::min(columns, column + pick(3))};
            const excel::Range stroked = cells(brxllib::address_of(std::vector{area}).text);
            if (pick(3) == 0) {
                stroked.Font().Color(fonts[pick(std::size(fonts))]);
            } else {
                stroked.FormulaR1C1(contents[pick(std::size(contents))]);
            }
        }
        if (pick(3) == 0) cells("C4:D6").MergeCells(true);
        // The colour that each cell must get, by the rule and nothing else.
        AutoColorSettings settings;
        settings.bAutoColorText = automation::to_boolean(automation::get(service(), "bAutoColorText"));
        settings.bAutoColorDate = automation::to_boolean(automation::get(service(), "bAutoColorDate"));
        NameMeanings names(book().Worksheets().Item(1), "Sheet1");
        std::vector<std::int32_t> expected;
        for (std::int32_t row = 1; row <= rows; ++row) {
            for (std::int32_t column = 1; column <= columns; ++column) {
                const excel::Range cell = cells("A1:I23").Cells(row, column);
                const std::int32_t before = automation::to_integer(cell.Font().Color());
                const CellClass held = automation::to_boolean(cell.HasFormula())
                                           ? class_of_formula(automation::to_text(cell.Formula()), names, true)
                                           : class_of_constant(cell.Value());
                const auto wanted = color_of(held, settings);
                expected.push_back(wanted && before != orange ? *wanted : before);
            }
        }
        const bool parts = pick(2) == 0;
        run(parts ? "A1:I11,A12:D40,E12:XFD40" : "A1:I23");
        for (std::int32_t at = 0; at < rows * columns; ++at) {
            const excel::Range cell = cells("A1:I23").Cells(at / columns + 1, at % columns + 1);
            ASSERT_EQ(automation::to_integer(cell.Font().Color()), expected[static_cast<std::size_t>(at)])
                << "round " << round << " " << cell.Address() << " " << automation::to_text(cell.Formula());
        }
    }
}

TEST(Rectangles, CoverExactlyWhatIsWanted) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        const formula::Area block{3, 2, 3 + round % 7, 2 + round % 11};
        std::vector<std::uint8_t> cells(static_cast<std::size_t>(block.cells()));
        for (auto& cell : cells) cell = static_cast<std::uint8_t>(random() % (round % 3 + 1));
        std::vector<int> covered(cells.size());
        for (const formula::Area& area : rectangles(block, cells, 1)) {
            ASSERT_TRUE(block.contains(area));
            for (std::int32_t row = area.first_row; row <= area.last_row; ++row) {
                for (std::int32_t column = area.first_column; column <= area.last_column; ++column) {
                    ++covered[static_cast<std::size_t>((row - 3) * block.columns() + column - 2)];
                }
            }
        }
        for (std::size_t i = 0; i < cells.size(); ++i) ASSERT_EQ(covered[i], cells[i] == 1 ? 1 : 0);
    }
    const std::vector<std::uint8_t> stripes{1, 0, 1, 1, 0, 1, 1, 0, 1};
    EXPECT_EQ(rectangles({1, 1, 3, 3}, stripes, 1).size(), 2U) << "columns stay whole";
}

TEST(Addresses, StayBelowExcelsLimit) {
    std::vector<formula::Area> areas;
    for (std::int32_t row = 1'000'000; row < 1'000'100; row += 2) areas.push_back({row, 16'000, row, 16'010});
    std::size_t taken = 0;
    while (taken < areas.size()) {
        const AddressText address = address_of(std::span(areas).subspan(taken));
        ASSERT_GE(address.areas, 1U);
        EXPECT_LE(address.text.size(), 255U);
        EXPECT_EQ(std::ranges::count(address.text, ',') + 1, static_cast<std::ptrdiff_t>(address.areas));
        taken += address.areas;
    }
    EXPECT_EQ(taken, areas.size());
}

}  // namespace
}  // namespace kestrune::brxllib
