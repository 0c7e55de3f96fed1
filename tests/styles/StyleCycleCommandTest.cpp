#include <gmock/gmock.h>

#include "excel/Constants.h"
#include "forms/ScriptedPresenter.h"
#include "settings/cUserSettings.h"
#include "styles/FakeExcel.h"
#include "styles/commands/StyleCycleCommands.h"

namespace kestrune::styles {
namespace {

using settings::StyleCycle;

struct StyleCycleCommand : testing::Test {
    forms::ScriptedPresenter presenter;
    automation::Trace trace;
    core::SharedState shared{presenter, trace};
    FakeCell cell;
    std::shared_ptr<FakeObject> application = std::make_shared<FakeObject>("Application", cell.log);

    StyleCycleCommand() {
        shared.application = application;
        shared.user_settings = std::make_shared<settings::cUserSettings>();
        shared.user_settings->LoadDefaults();
        application->properties["Selection"] = cell.range;
    }

    // The writes that a press makes when the selection has so many cells.
    const std::vector<std::string>& writes(StyleCycle cycle, double cells) {
        cell.log.clear();
        cell.range->properties["CountLarge"] = cells;
        apply_style_cycle(shared, cycle, 0);
        return cell.log;
    }
};

TEST_F(StyleCycleCommand, PausesRedrawingOnlyForLargeSelectionsAndSlowCycles) {
    const auto redrawing = testing::Contains("Application.ScreenUpdating").Times(2);
    for (const StyleCycle cycle :
         {StyleCycle::BorderStyleToggle, StyleCycle::MyStyleToggle1, StyleCycle::MyStyleToggle15}) {
        EXPECT_THAT(writes(cycle, 10), redrawing);
        EXPECT_EQ(cell.log.front(), "Application.ScreenUpdating");
        EXPECT_EQ(cell.log.back(), "Application.ScreenUpdating");
        EXPECT_EQ(application->properties["ScreenUpdating"], automation::Value(true));
        EXPECT_THAT(writes(cycle, 9), testing::Not(testing::Contains("Application.ScreenUpdating")));
    }
    for (const StyleCycle cycle : {StyleCycle::GeneralStyleToggle, StyleCycle::CellColorStyleToggle}) {
        EXPECT_THAT(writes(cycle, 1e9), testing::Not(testing::Contains("Application.ScreenUpdating")));
    }
}

TEST_F(StyleCycleCommand, OnlyTheCenterCycleUnmergesAndDoesSoFirst) {
    EXPECT_THAT(writes(StyleCycle::CenterStyleToggle, 4),
                testing::ElementsAre("Range.MergeCells", "Range.HorizontalAlignment"));
    EXPECT_THAT(writes(StyleCycle::HAlignStyleToggle, 4), testing::ElementsAre("Range.HorizontalAlignment"));
}

TEST_F(StyleCycleCommand, LeavesWhatIsNoRangeAlone) {
    application->properties["Selection"] = cell.font;
    EXPECT_THAT(writes(StyleCycle::UnderlineStyleToggle, 1), testing::IsEmpty());
    application->properties["Selection"] = automation::ObjectRef();
    EXPECT_THAT(writes(StyleCycle::UnderlineStyleToggle, 1), testing::IsEmpty());
    application->properties.erase("Selection");
    EXPECT_THAT(writes(StyleCycle::UnderlineStyleToggle, 1), testing::IsEmpty());
}

TEST_F(StyleCycleCommand, AUsersCycleAppliesAnEntryToAGivenRange) {
    ApplySmartCycleStyle(shared, 5, 3, cell.range);
    EXPECT_EQ(cell.font->properties["Name"], automation::Value("Courier New"));
    cell.log.clear();
    for (const std::int32_t no_cycle : {0, 16, -1}) ApplySmartCycleStyle(shared, no_cycle, 1, cell.range);
    ApplySmartCycleStyle(shared, 5, 6, cell.range);
    ApplySmartCycleStyle(shared, 5, 1, cell.font);
    ApplySmartCycleStyle(shared, 5, 1, nullptr);
    EXPECT_THAT(cell.log, testing::IsEmpty());
}

}  // namespace
}  // namespace kestrune::styles
