#include <windows.h>

#include <gmock/gmock.h>

#include "automation/CreateObject.h"
#include "brvblib/register_library.h"
#include "core/bridges/SharedState.h"
#include "settings/style_editor/fStyleEditor.h"
#include "windows/TakePicture.h"
#include "windows/Win32Presenter.h"
#include "windows/forms/Hand.h"

namespace kestrune::windows {
namespace {

// The style editor as people see it and work it by keys; the pictures are for looking at.
struct StyleEditor : testing::Test {
    StyleEditor() {
        brvblib::register_library({.trace = trace, .presenter = presenter});
        state.general_library = std::make_shared<core::diBRVBLib>(trace);
        state.general_library->Create();
        settings.LoadDefaults({.today = automation::Date{46349}});
        style.FriendlyName = "House Total";
        style.NumberFormat = "$#,##0.00_);($#,##0.00)";
        style.Bold = true;
        style.Size = 14;
        style.FontColor = 0x800000;
        style.CellColor = 0x99FFFF;
        style.BorderStyle = excel::xlContinuous;
        style.BorderTop = style.BorderBottom = true;
        style.bTransOrientation = style.bTransShrinkToFit = style.bTransStrikeThrough = true;
        style.Comments = "For the totals of every sheet that goes to the bank.";
    }
    ~StyleEditor() override { automation::unregister_class("BRVBLib.iPublic"); }

    void take(const std::string& name) {
        hand.then([] {});
        hand.then([name] { take_picture(GetActiveWindow(), "build/form-style-" + name + ".bmp"); });
    }
    // Ctrl+Page Down.
    void turn_page() {
        const auto hold = [](BYTE held) {
            BYTE keys[256] = {};
            keys[VK_CONTROL] = held;
            SetKeyboardState(keys);
        };
        hand.then([hold] {
            hold(0x80);
            PostMessageW(GetFocus(), WM_KEYDOWN, VK_NEXT, 1);
        });
        hand.then([hold] { hold(0); });
    }
    void take_all_pages(const std::string& size) {
        for (const char* page : {"style", "number", "alignment", "font", "border", "fill"}) {
            take(page + size);
            turn_page();
        }
    }

    Win32Presenter presenter{FormPlaces("")};
    automation::Trace trace;
    core::SharedState state{presenter, trace};
    settings::cUserSettings settings;
    styles::StyleFields style;
    Hand hand;
};

TEST_F(StyleEditor, IsWorkedByKeys) {
    settings::fStyleEditor editor(state, settings, style, nullptr);
    take_all_pages("");
    hand.access_key(L'n');
    hand.type(L"House Sum");
    turn_page();
    hand.access_key(L'f');
    hand.type(L"0.0\"x");
    hand.key(VK_RETURN);
    take("message");
    hand.key(VK_RETURN);
    hand.then([&] {
        EXPECT_TRUE(editor.Visible());
        EXPECT_EQ(editor.ActiveControl(), &editor["txtNumberFormat"]);
    });
    hand.type(L"0.0\"x\"");
    turn_page();
    hand.access_key(L'h');  // unticks it
    hand.access_key(L'i');
    hand.access_key(L'i');  // and ticks it again
    hand.key(VK_TAB);
    hand.key(VK_UP);
    hand.key(VK_UP);
    turn_page();
    hand.access_key(L'c');
    hand.access_key(L'c');
    hand.key(VK_TAB);
    hand.key(VK_F4);  // unfolds the list
    take("colors");
    hand.key(VK_F4);
    for (int i = 0; i < 6; ++i) hand.key(VK_UP);
    take("worked");
    hand.key(VK_RETURN);
    editor.Show(presenter);
    ASSERT_TRUE(editor.result());
    auto expected = style;
    expected.FriendlyName = "House Sum";
    expected.NumberFormat = "0.0\"x\"";
    expected.bTransHorizontalAlignment = true;
    expected.Indents = style.Indents + 2;
    expected.FontColor = 0;  // Black is the first of the list
    EXPECT_EQ(*editor.result(), expected);
}

TEST_F(StyleEditor, FitsItsPagesAtOneAndAHalf) {
    hand.then([] {
        RECT place{20, 20, 1010, 760};
        SendMessageW(GetActiveWindow(), 0x02E0, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&place));
    });
    take_all_pages("-150-per-cent");
    hand.key(VK_ESCAPE);
    settings::fStyleEditor editor(state, settings, style, nullptr);
    editor.Show(presenter);
    EXPECT_FALSE(editor.result());
}

}  // namespace
}  // namespace kestrune::windows
