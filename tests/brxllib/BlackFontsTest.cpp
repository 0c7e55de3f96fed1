#include "automation/MemberTable.h"
#include "brxllib/LibraryInHost.h"
#include "excel/Constants.h"
#include "host/model/ConditionalMatch.h"

namespace kestrune::brxllib {
namespace {

constexpr std::int32_t white = 0xFFFFFF;
constexpr std::int32_t blue = 0xFF0000;

// A client that wants white left alone.
class WhiteStays : public automation::Served<WhiteStays> {
  public:
    static const automation::MemberTable& members() {
        static constexpr auto rows =
            automation::member_rows(automation::method<&WhiteStays::do_not_auto_color>("DoNotAutoColor", 1, "Color"));
        static constexpr automation::MemberTable table("WhiteStays", rows);
        return table;
    }

  private:
    bool do_not_auto_color(std::int32_t color) { return color == white; }
};

struct BlackFontsTest : LibraryInHost {
    BlackFontsTest() { library->register_callback(std::make_shared<WhiteStays>()); }

    bool toggle() const { return automation::to_boolean(automation::call(*library->iAutoColor(), "ToggleBlackFonts")); }
    [[nodiscard]] bool has_black_fonts() const {
        return automation::to_boolean(automation::call(*library->iAutoColor(), "HasBlackFonts"));
    }
    // The colour in which a cell's text is seen; its own colour where nothing lies over it.
    [[nodiscard]] std::int32_t seen(std::string_view address, std::size_t sheet = 0) const {
        host::Workbook& model = *session.active()->model;
        const excel::Range cell = cells(address, model.sheets()[sheet]->name());
        for (const auto* format : host::conditional_matches(*model.sheets()[sheet], {cell.Row(), cell.Column()})) {
            if (format->font_color) return static_cast<std::int32_t>(model.rgb_of(*format->font_color, 0));
        }
        return automation::to_integer(cell.Font().Color());
    }
};

TEST_F(BlackFontsTest, EverythingIsSeenInBlackAndBackInItsColours) {
    cells("B2:F20").Font().Color(blue);
    cells("B2:F20").Value(1.0);
    cells("B4:F4,D9").Font().Color(white);
    cells("A1", "Other Sheet").Font().Color(255);
    session.active()->model->sheets()[1]->visibility = host::Visibility::Hidden;
    const excel::FormatCondition own =
        cells("B2:F20").FormatConditions().Add(excel::xlCellValue, excel::xlGreater, "0");
    own.Font().Color(255);
    own.Interior().Color(65535);

    EXPECT_FALSE(has_black_fonts());
    EXPECT_TRUE(toggle());
    EXPECT_TRUE(has_black_fonts());
    for (const char* black : {"B2", "F20", "C9", "E9", "B3", "B5", "Z9999"}) EXPECT_EQ(seen(black), 0) << black;
    EXPECT_EQ(seen("A1", 1), 0) << "of all sheets, hidden ones too";
    for (const char* left : {"B4", "F4", "D9"}) EXPECT_EQ(seen(left), 255) << left << " has the user's own format only";
    EXPECT_EQ(cells("B2").FormatConditions().Count(), 2);
    EXPECT_EQ(automation::to_integer(cells("B2").Font().Color()), blue) << "the fonts are what they were";
    cells("C5").Font().Color(0x008000);

    EXPECT_FALSE(toggle());
    EXPECT_FALSE(has_black_fonts());
    EXPECT_EQ(cells("A1:XFD1048576").FormatConditions().Count(), 1);
    cells("B2:F20").FormatConditions().Delete();
    EXPECT_EQ(seen("B2"), blue);
    EXPECT_EQ(seen("D9"), white);
    EXPECT_EQ(seen("C5"), 0x008000) << "what was done meanwhile stays";
    EXPECT_EQ(seen("A1", 1), 255);
}

TEST_F(BlackFontsTest, OneBlackSheetIsEnoughToGoBack) {
    cells("A1").Value(1.0);
    toggle();
    cells("1:1048576").FormatConditions().Delete();
    EXPECT_TRUE(has_black_fonts()) << "the other sheet";
    EXPECT_FALSE(toggle());
    EXPECT_EQ(cells("A1:B9", "Other Sheet").FormatConditions().Count(), 0);
    session.active()->model->sheets()[0]->protection().on = true;
    EXPECT_TRUE(toggle()) << "a protected sheet keeps no other from being black";
    EXPECT_EQ(cells("A1").FormatConditions().Count(), 0);
}

TEST_F(BlackFontsTest, CallsDoNotGrowWithCells) {
    const auto calls_with = [&](const char* address) {
        cells(address).Font().Color(blue);
        cells(address).Value(1.0);
        return calls_of([&] {
            toggle();
            toggle();
        });
    };
    const std::int64_t one = calls_with("A1");
    EXPECT_EQ(calls_with("A1:J10"), one);
    EXPECT_EQ(calls_with("A1:CV100"), one);
    EXPECT_LE(one, 100);
}

}  // namespace
}  // namespace kestrune::brxllib
