#include <windows.h>

#include <gmock/gmock.h>

#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "core/bridges/SharedState.h"
#include "settings/cUserSettings.h"
#include "smart/copy/fSmartCopy.h"
#include "smart/fill/fSmartFillDates.h"
#include "smart/fill/fSmartFillNumbers.h"
#include "smart/spacing/fSmartFmlaSpacing.h"
#include "windows/TakePicture.h"
#include "windows/Win32Presenter.h"
#include "windows/forms/Hand.h"

namespace kestrune::windows {
namespace {

// The dialogs of the tools as people see them; the pictures are for looking at.
struct ToolDialogs : testing::Test {
    ToolDialogs() {
        brvblib::register_library({.trace = trace, .presenter = presenter});
        state.general_library = std::make_shared<core::diBRVBLib>(trace);
        state.general_library->Create();
    }
    ~ToolDialogs() override { automation::unregister_class("BRVBLib.iPublic"); }
    void take(const char* name) {
        hand.then([] {});
        hand.then([name] { take_picture(GetActiveWindow(), std::string("build/form-") + name + ".bmp"); });
    }

    Win32Presenter presenter{FormPlaces("")};
    automation::Trace trace;
    core::SharedState state{presenter, trace};
    Hand hand;
};

TEST_F(ToolDialogs, SmartCopy) {
    for (const auto* direction : {&smart::copy_down, &smart::copy_right}) {
        const bool down = direction->down;
        settings::SmartCopyOptions options;
        smart::fSmartCopy form(state, *direction, options);
        take(down ? "smart-copy-down" : "smart-copy-right");
        hand.access_key(L'x');
        hand.key(VK_UP);
        hand.access_key(L'v');
        if (down) {
            // No interval: the message stands before the dialog, which stays.
            hand.access_key(L'x');
            hand.type(L"two");
            hand.key(VK_RETURN);
            take("smart-copy-message");
            hand.key(VK_RETURN);
            hand.then([&] {
                EXPECT_TRUE(form.Visible());
                EXPECT_EQ(form.ActiveControl(), &form["txtInterval"]);
            });
            take("smart-copy-condition");
            hand.type(L"3");
        }
        hand.access_key(L's');
        hand.key(VK_RETURN);
        form.Show(presenter);
        EXPECT_TRUE(form.confirmed());
        EXPECT_EQ(options.IntervalValues, down ? 3 : 2);
        EXPECT_TRUE(options.Values);
        EXPECT_FALSE(options.Show);
    }
}

TEST_F(ToolDialogs, SmartFormulaSpacing) {
    settings::SmartFmlaRowSpacingOptions kept;
    smart::fSmartFmlaSpacing form(state, {"rows", "Row adjustment", "Smart Formula Row Spacing"},
                                  {kept.FmlaRows, kept.ReferenceRows, kept.Show});
    take("smart-formula-spacing");
    hand.type(L"4");
    hand.key(VK_TAB);
    hand.type(L"12");
    hand.key(VK_RETURN);
    form.Show(presenter);
    EXPECT_EQ(kept, (settings::SmartFmlaRowSpacingOptions{4, 12, true}));
}

TEST_F(ToolDialogs, SmartFill) {
    state.user_settings = std::make_shared<settings::cUserSettings>();
    state.user_settings->LoadDefaults({.today = automation::Date{46349}});
    settings::SmartFillDatesOptions dates = state.user_settings->SmartFillDates;
    smart::fSmartFillDates date_form(state, dates);
    hand.access_key(L'p');
    hand.key(VK_DOWN);
    hand.key(VK_DOWN);
    hand.access_key(L'd');
    take("smart-fill-dates");
    hand.key(VK_RETURN);
    date_form.Show(presenter);
    EXPECT_EQ(dates.StartDate, automation::Date{46081}) << "28 February 2026";
    EXPECT_FALSE(dates.Across);
    settings::SmartFillNumbersOptions numbers;
    smart::fSmartFillNumbers number_form(state, numbers);
    hand.access_key(L'p');
    hand.access_key(L'i');
    hand.type(L"0");
    hand.key(VK_RETURN);
    take("smart-fill-message");
    hand.key(VK_RETURN);
    take("smart-fill-numbers");
    hand.key(VK_ESCAPE);
    number_form.Show(presenter);
    EXPECT_FALSE(number_form.confirmed());
}

}  // namespace
}  // namespace kestrune::windows
