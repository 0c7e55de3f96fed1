#include "settings/DefaultCycles.h"
#include "styles/AddInInHost.h"

namespace kestrune::styles {
namespace {

std::string command_of(const settings::DefaultCycle& row) {
    return std::to_string(19 + static_cast<std::size_t>(row.field));
}

struct CyclesInHost : AddInInHost {
    // The looks of some cells, one a line.
    [[nodiscard]] std::string looks(std::initializer_list<const char*> addresses) const {
        std::string text;
        for (const char* address : addresses) text += look_of(cells(address)) + "\n";
        return text;
    }
};

// Each press gives the next entry, and after the last the first: what it should look like is seen on a
// second range, to which the entries are applied by their positions.
TEST_F(CyclesInHost, EveryDefaultCycleVisitsEachOfItsEntriesInTurn) {
    struct Place {
        const char* pressed;
        std::initializer_list<const char*> seen;
        const char* directly;
        std::initializer_list<const char*> wanted;
    };
    const Place places[] = {
        {"B2", {"B2"}, "H2", {"H2"}},
        {"B10:D12", {"B10", "C11", "D12"}, "H10:J12", {"H10", "I11", "J12"}},
        {"B20:D20", {"B20", "C20", "D20"}, "H20:J20", {"H20", "I20", "J20"}},
        {"B30:B32", {"B30", "B31", "B32"}, "H30:H32", {"H30", "H31", "H32"}},
        {"B40:C41,B44:C46", {"B40", "C41", "B44", "C46"}, "H40:I41,H44:I46", {"H40", "I41", "H44", "I46"}},
    };
    for (const settings::DefaultCycle& row : settings::default_cycles()) {
        for (const Place& place : places) {
            clear_formats(place.pressed);
            clear_formats(place.directly);
            std::string last = looks(place.seen);
            for (std::size_t i = 0; i <= row.steps.size() && !row.steps.empty(); ++i) {
                SCOPED_TRACE(std::string(row.display_name) + " on " + place.pressed + ", press " +
                             std::to_string(i + 1));
                const std::size_t position = i % row.steps.size() + 1;
                press(place.pressed, command_of(row));
                press(place.directly, command_of(row) + "." + std::to_string(position));
                const std::string now = looks(place.seen);
                ASSERT_EQ(now, looks(place.wanted));
                // Entries that look alike would be one; the cycle's last may be how the range was.
                if (i > 0) {
                    ASSERT_NE(now, last);
                }
                last = now;
            }
        }
    }
}

TEST_F(CyclesInHost, AStyleIsRecognisedInTheNextSession) {
    for (const settings::DefaultCycle& row : settings::default_cycles()) {
        for (std::size_t i = 1; i < row.steps.size(); ++i) {
            SCOPED_TRACE(row.steps[i - 1]);
            press("B2:C3", command_of(row) + "." + std::to_string(i));
            restart();
            press("B2:C3", command_of(row));
            press("H2:I3", command_of(row) + "." + std::to_string(i));
            press("H2:I3", command_of(row) + "." + std::to_string(i + 1));
            ASSERT_EQ(looks({"B2", "C3"}), looks({"H2", "I3"}));
        }
    }
}

TEST_F(CyclesInHost, OneFamilyLeavesTheOthersAlone) {
    for (const char* request : {"27.3", "29.1", "30.1", "34.2", "25.2"}) press("B2", request);
    const std::string before = look_of(cells("B2"));
    press("B2", "20.3");
    EXPECT_EQ(cells("B2").NumberFormat(), excel::Value("[$$-409]#,##0.00_);([$$-409]#,##0.00)"));
    cells("B2").NumberFormat("General");
    EXPECT_EQ(look_of(cells("B2")), before);
}

TEST_F(CyclesInHost, AMixedSelectionFollowsItsFirstCell) {
    press("B2", "20.2");
    press("B2:B5", "20");
    for (const char* address : {"B2", "B5"}) {
        EXPECT_EQ(cells(address).NumberFormat(), excel::Value("[$$-409]#,##0.00_);([$$-409]#,##0.00)"));
    }
    press("B2:B5", "20.11");
    EXPECT_EQ(cells("B2:B5").NumberFormat(), excel::Value("[$$-409]#,##0.00_);([$$-409]#,##0.00)"));
}

TEST_F(CyclesInHost, ThePressCostsTheSameHoweverManyCells) {
    const auto calls = [&](std::string_view address, std::string_view request) {
        cells(address).Select();
        const std::int64_t before = session.calls();
        automation::call(*global, "RunMacro", {request});
        return session.calls() - before;
    };
    for (const char* request : {"20.1", "32.4", "29.1", "31.2"}) {
        EXPECT_EQ(calls("B2:D5", request), calls("F10:K2000", request)) << request;
    }
    // A whole sheet: formats of columns and rows, not of 17 billion cells.
    calls("1:1048576", "32.4");
    EXPECT_LT(calls("1:1048576", "20"), 1200) << "undo finds the two blocks above, in every respect, before and after";
    EXPECT_EQ(cells("XFD1048576").NumberFormat(), excel::Value("[$$-409]#,##0_);([$$-409]#,##0)"));
}

TEST_F(CyclesInHost, BinaryShowsInRedWhatIsNoFlag) {
    press("B2:B4", "24");
    const excel::FormatConditions conditions = cells("B3").FormatConditions();
    ASSERT_EQ(conditions.Count(), 3);
    struct Wanted {
        std::int32_t operation;
        const char* formula1;
    };
    const Wanted wanted[] = {{5, "1"}, {1, "0.00001"}, {6, "0"}};
    for (std::int32_t i = 1; i <= 3; ++i) {
        const excel::FormatCondition condition = conditions.Item(i);
        EXPECT_EQ(condition.Type(), 1);
        EXPECT_EQ(condition.Operator(), wanted[i - 1].operation);
        EXPECT_THAT(condition.Formula1(),
                    testing::AnyOf(wanted[i - 1].formula1, std::string("=") + wanted[i - 1].formula1));
        EXPECT_EQ(automation::to_integer(condition.Font().Color()), 255);
    }
    EXPECT_THAT(conditions.Item(2).Formula2(), testing::HasSubstr(".99999"));

    press("B2:B4", "24");
    EXPECT_EQ(cells("B3").FormatConditions().Count(), 3) << "the old ones go when the new ones come";
    press("B2", "20");
    EXPECT_EQ(cells("B2").FormatConditions().Count(), 0);
    EXPECT_EQ(cells("B3").FormatConditions().Count(), 3);
}

TEST_F(CyclesInHost, CenterTakesMergedCellsApart) {
    cells("B2:D2").MergeCells(true);
    press("B2", "26");
    EXPECT_EQ(cells("B2:D2").MergeCells(), excel::Value(false));
    EXPECT_EQ(cells("B2").HorizontalAlignment(), excel::Value(excel::xlCenter));
}

TEST_F(CyclesInHost, AUsersCycleIsAppliedByNumber) {
    automation::call(*global, "ApplySmartCycleStyle", {5, 3, cells("B2").object()});
    EXPECT_EQ(cells("B2").Font().Name(), excel::Value("Courier New"));
    automation::call(*global, "ApplySmartCycleStyle", {16, 1, cells("B2").object()});
    EXPECT_EQ(cells("B2").Font().Name(), excel::Value("Courier New"));
}

}  // namespace
}  // namespace kestrune::styles
