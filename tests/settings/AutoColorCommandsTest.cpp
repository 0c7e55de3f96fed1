#include "settings/cUserSettings.h"
#include "styles/AddInInHost.h"

namespace kestrune::settings {
namespace {

using automation::Value;

constexpr std::int32_t blue = 0xFF0000;
constexpr std::int32_t black = 0;

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

TEST_F(AutoColorCommands, WithoutCellsOrLibrariesNothingHappens) {
    stop();
    automation::unregister_class("BRXLLib.iPublic");
    start();
    for (const char* member : {"RunAutoColor", "ToggleAutoColor"}) call(member);
    EXPECT_EQ(colors(), (std::vector<std::int32_t>{black, black, black}));
}

}  // namespace
}  // namespace kestrune::settings
