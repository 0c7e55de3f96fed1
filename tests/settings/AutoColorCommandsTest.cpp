#include <array>

#include "settings/AutoColorCommands.h"
#include "settings/cUserSettings.h"
#include "styles/AddInInHost.h"

namespace kestrune::settings {
namespace {

using automation::Value;

constexpr std::int32_t blue = 0xFF0000;
constexpr std::int32_t black = 0;
constexpr std::int32_t white = 0xFFFFFF;

// The AutoColor members and commands as menus and keys call them.
struct AutoColorCommands : styles::AddInInHost {
    AutoColorCommands() {
        workbook->add_sheet("Hidden").visibility = host::Visibility::Hidden;
        for (const std::int32_t sheet : {1, 2}) {
            const excel::Range cells = on(sheet, "A1:C3");
            cells.Value(1.0);
            cells.Columns().Item(1, 2).EntireColumn().Font().Bold(true);
        }
    }

    [[nodiscard]] excel::Range on(std::int32_t sheet, std::string_view address) const {
        return application.ActiveWorkbook().Worksheets().Item(sheet).Range(address);
    }
    [[nodiscard]] std::int32_t color(std::int32_t sheet, std::string_view address) const {
        return automation::to_integer(on(sheet, address).Font().Color());
    }
    // The colours of the selected cells, of others on the sheet, and of another sheet.
    [[nodiscard]] std::vector<std::int32_t> colors() const {
        return {color(1, "A1:A2"), color(1, "B1:C3"), color(2, "A1:C3")};
    }
    void call(std::string_view member) const { automation::call(*global, member); }
};

TEST_F(AutoColorCommands, ReachSelectionSheetAndWorkbook) {
    const std::vector<std::int32_t> selection{blue, black, black};
    press("A1:A2", "15");
    EXPECT_EQ(colors(), selection);
    on(1, "A1:C3").Font().Color(black);
    call("RunAutoColor");
    EXPECT_EQ(colors(), selection);
    press("C3", "102");
    EXPECT_EQ(colors(), (std::vector<std::int32_t>{blue, blue, black}));
    press("C3", "93");
    EXPECT_EQ(colors(), (std::vector<std::int32_t>{blue, blue, blue}));
    EXPECT_EQ(on(1, "B2").Font().Bold(), Value(true)) << "the rest of the font stays";
}

TEST_F(AutoColorCommands, ToggleColoursChangesUntilItIsPressedAgain) {
    call("ToggleAutoColor");
    on(1, "E1").Value(5.0);
    EXPECT_EQ(color(1, "E1"), blue);
    call("ToggleAutoColor");
    on(1, "E2").Value(5.0);
    EXPECT_EQ(color(1, "E2"), black);
    call("ToggleAutoColor");
    stop();
    on(1, "E3").Value(5.0);
    EXPECT_EQ(color(1, "E3"), black) << "an add-in that is gone hears nothing";
    start();
    on(1, "E4").Value(5.0);
    EXPECT_EQ(color(1, "E4"), black) << "each start begins with the user's settings";
}

TEST_F(AutoColorCommands, LeaveTheColoursOfTheDesignatedCycle) {
    on(1, "A1").Font().Color(white);
    on(1, "A2").Font().Color(0x123456);
    press("A1:C1,A2", "15");
    EXPECT_EQ(color(1, "A1"), white);
    EXPECT_EQ(color(1, "B1:C1,A2"), blue);
}

// The first cycle of the name counts, whichever of the five it is; without one nothing is left alone.
TEST_F(AutoColorCommands, TheDesignationIsByName) {
    core::SharedState shared{presenter, trace};
    shared.spreadsheet_library = std::make_shared<core::diBRXLLib>(trace);
    ASSERT_TRUE(shared.spreadsheet_library->Create());
    const std::string name = shared.spreadsheet().auto_color_smart_cycle();
    EXPECT_FALSE(is_respected_color(shared, 1)) << "no settings";
    const struct {
        std::array<const char*, my_color_cycle_count> names;
        std::int32_t deciding;  // 0 for none
    } rows[] = {
        {{"A", "*", "B", "C", "D"}, 2}, {{"A", "*", "*", "C", "*"}, 2}, {{"*", "A", "*", "C", "D"}, 1},
        {{"A", "B", "C", "D", "*"}, 5}, {{"A", "B", "C", "D", "E"}, 0}, {{"", "", "", "*", ""}, 4},
    };
    for (const auto& row : rows) {
        shared.user_settings = std::make_shared<cUserSettings>();
        for (std::size_t i = 0; i < my_color_cycle_count; ++i) {
            const double own = static_cast<double>(i) + 1;
            const std::string called = row.names[i] == std::string("*") ? name : row.names[i];
            shared.user_settings->set_cycle(
                my_color_cycle(i + 1), std::make_shared<styles::cLongToggle>(called, std::vector<double>{99, own}));
        }
        for (std::int32_t color = 1; color <= 5; ++color) {
            EXPECT_EQ(is_respected_color(shared, color), color == row.deciding) << row.deciding << " " << color;
        }
    }
    shared.settings().cycle(NumericCycle::MyColorToggle4)->LookFors = {7, 8};
    EXPECT_FALSE(is_respected_color(shared, 7)) << "what the palette made of a colour is not that colour";
}

TEST_F(AutoColorCommands, WithoutCellsOrLibrariesNothingHappens) {
    stop();
    automation::unregister_class("BRXLLib.iPublic");
    start();
    for (const char* member : {"RunAutoColor", "ToggleAutoColor"}) call(member);
    EXPECT_EQ(colors(), (std::vector<std::int32_t>{black, black, black}));
}

}  // namespace
}  // namespace kestrune::settings
