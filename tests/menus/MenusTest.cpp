#include <set>

#include "automation/Caption.h"
#include "brvblib/CommandTexts.h"
#include "core/iGlobal.h"
#include "excel/CommandBarButton.h"
#include "excel/CommandBarPopup.h"
#include "menus/Captions.h"
#include "menus/LessonTree.h"
#include "menus/MenuTable.h"
#include "settings/cUserSettings.h"
#include "styles/AddInInHost.h"

namespace kestrune::menus {
namespace {

using automation::get;
using automation::ObjectRef;
using automation::to_boolean;
using automation::to_object;
using automation::to_text;
using automation::Value;
using testing::ElementsAre;

// The add-in with its macros, and the menus as a person works with them.
struct MenusTest : styles::AddInInHost {
    MenusTest() {
        brxllib::register_library(trace,
                                  {.presenter = &presenter, .swatch = [](std::int32_t color) { return Value(color); }});
        core::register_add_in(state);
        restart();
        for (const automation::Member& member : core::iGlobal::members().rows()) {
            session.macros.add({}, "mDOM." + std::string(member.name), [this, name = member.name](auto given) {
                // As mDOM does: a command without a request is that of the clicked item.
                automation::Arguments arguments;
                arguments.positional.assign(given.begin(), given.end());
                if (name == "RunMacro" && given.empty()) {
                    arguments.positional.emplace_back(application.CommandBars().ActionControl().Parameter());
                }
                return automation::call(*global, name, std::move(arguments));
            });
        }
    }

    void run(std::string_view member) const { automation::call(*global, member); }
    [[nodiscard]] excel::CommandBar bar() const { return application.CommandBars().Item("Worksheet Menu Bar"); }
    [[nodiscard]] static excel::CommandBarControls controls(const excel::CommandBarControl& popup) {
        return excel::CommandBarPopup(popup.object()).Controls();
    }
    // Opens popups on the way to a control, as a person does.
    [[nodiscard]] excel::CommandBarControl at(std::initializer_list<Value> path) const {
        excel::CommandBarControls here = bar().Controls();
        excel::CommandBarControl control;
        for (const Value& step : path) {
            control = here.Item(step);
            if (!is_popup(control)) continue;
            control.Execute();
            here = controls(control);
        }
        return control;
    }
    [[nodiscard]] static bool is_popup(const excel::CommandBarControl& control) {
        return control.Type() == excel::msoControlPopup;
    }
    [[nodiscard]] static std::vector<std::string> captions(const excel::CommandBarControls& all) {
        std::vector<std::string> texts;
        for (std::int32_t i = 1; i <= all.Count(); ++i) texts.push_back(all.Item(i).Caption());
        return texts;
    }
    [[nodiscard]] static std::string text(const excel::CommandBarControl& control, std::string_view property) {
        return to_text(get(*control.object(), property));
    }
    [[nodiscard]] static bool checked(const excel::CommandBarControl& button) {
        return excel::CommandBarButton(button.object()).State() == excel::msoButtonDown;
    }
    // Calls act with each control below some, whatever its depth, and the popup's captions.
    template <class Act>
    void walk(const excel::CommandBarControls& all, Act&& act) const {
        for (std::int32_t i = 1; i <= all.Count(); ++i) {
            act(all.Item(i));
            if (is_popup(all.Item(i))) walk(controls(all.Item(i)), act);
        }
    }

    std::shared_ptr<core::SharedState> state = std::make_shared<core::SharedState>(presenter, trace);
};

TEST_F(MenusTest, EveryCommandStandsOnTheMenuOnceUnderItsOwnName) {
    std::multiset<std::string> requests;
    for (const MenuRow& row : menu_rows()) {
        if (row.request.empty()) continue;
        requests.emplace(row.request);
        if (row.kind == MenuRow::Kind::Cycle || row.request.starts_with("99.")) continue;
        EXPECT_EQ(automation::plain_caption(row.caption),
                  brvblib::command_texts[std::stoul(std::string(row.request))].name);
    }
    for (std::int32_t number = 0; number <= 102; ++number) {
        if (number == 99) continue;
        EXPECT_EQ(requests.count(std::to_string(number)), 1) << number;
    }
    for (std::int32_t place = 1; place <= 6; ++place) EXPECT_EQ(requests.count("99." + std::to_string(place)), 1);
    for (const auto rows : {menu_rows(), toolbar_rows()}) {
        for (const MenuRow& row : rows) {
            const std::string action = action_of(row);
            if (action.empty()) continue;
            EXPECT_TRUE(core::iGlobal::members().find(action.substr(5))) << action;
        }
    }
}

TEST_F(MenusTest, AccessKeysAreUniqueInEachPopup) {
    run("CreateBRMenus");
    const auto expect_unique = [&](const excel::CommandBarControls& all) {
        std::set<char> keys;
        for (const std::string& caption : captions(all)) {
            EXPECT_TRUE(access_key(caption)) << caption << " has none";
            EXPECT_TRUE(keys.insert(access_key(caption)).second) << caption;
        }
    };
    const excel::CommandBarControl menu = at({"Kestrune"});
    expect_unique(controls(menu));
    walk(controls(menu), [&](const excel::CommandBarControl& control) {
        if (is_popup(control)) expect_unique(controls(control));
    });
}

TEST_F(MenusTest, TheyAreThereOnceAndLeaveNothingBehind) {
    const auto before = captions(bar().Controls());
    run("CreateBRMenus");
    const auto once = captions(bar().Controls());
    EXPECT_EQ(once.size(), before.size() + 2);
    EXPECT_EQ(once[once.size() - 3], "Kestrun&e");
    EXPECT_EQ(once[once.size() - 2], "&BR Tutorial");
    const std::int32_t lines = controls(at({"Kestrune"})).Count();
    run("CreateBRMenus");
    EXPECT_EQ(captions(bar().Controls()), once);
    EXPECT_EQ(controls(at({"Kestrune"})).Count(), lines);
    run("DeleteBRMenus");
    EXPECT_EQ(captions(bar().Controls()), before);
    EXPECT_FALSE(application.CommandBars().FindControl("Kestrune.Toolbar.20"));
    EXPECT_THROW(static_cast<void>(application.CommandBars().Item("Kestrune")), automation::AutomationError);
    run("DeleteBRMenus");
}

TEST_F(MenusTest, AClickOnTheThirdCurrencyItemFormatsTheCell) {
    run("CreateBRMenus");
    cells("B2").Select();
    const excel::CommandBarControl third = at({"Kestrune", "Format", "Currency", 3});
    EXPECT_EQ(third.Parameter(), "20.3");
    EXPECT_EQ(text(third, "OnAction"), "mDOM.RunMacro");
    third.Execute();
    const std::string by_click = styles::look_of(cells("B2"));
    press("D2", "20.3");
    EXPECT_EQ(by_click, styles::look_of(cells("D2")));
    EXPECT_NE(by_click, styles::look_of(cells("F2")));
}

TEST_F(MenusTest, PopupsShowTheStepsOfTheSettings) {
    run("CreateBRMenus");
    EXPECT_THAT(captions(controls(at({"Kestrune", "Indents and Sizes", "Row Height"}))),
                ElementsAre("Row Height 1", "Row Height 2", "Row Height 3"));
    EXPECT_EQ(at({"Kestrune", "Indents and Sizes", "Right Indent", 2}).Parameter(), "97.2");
    // "My SmartCycle 15" has no styles as it comes.
    const excel::CommandBarControl empty = application.CommandBars().FindControl("Kestrune.Menu.45");
    EXPECT_FALSE(empty.Enabled());
    run("UpdateMyStyleToggle15Popup");
    EXPECT_EQ(controls(empty).Count(), 0);
    EXPECT_FALSE(empty.Enabled());
    // The two colors of the first color SmartCycle, as their buttons show them.
    const auto swatches = controls(at({"Kestrune", "Format", "My Color SmartCycles", "Blue Black"}));
    EXPECT_THAT(captions(swatches), ElementsAre("Color 1", "Color 2"));
    EXPECT_EQ(text(swatches.Item(1), "Picture"), "16711680");
    EXPECT_EQ(text(swatches.Item(2), "Picture"), "0");
    // What the settings get meanwhile is there at the next opening, under the name that it has then.
    auto& cycle = *state->settings().cycle(settings::StyleCycle::MyStyleToggle15);
    cycle.Name = "R&D SmartCycle";
    cycle.Styles->Add(state->settings().Styles->Item(3));
    const auto filled = at({"Kestrune", "Format", "My SmartCycles", "R&&D"});
    EXPECT_THAT(captions(controls(filled)), ElementsAre(state->settings().Styles->Item(3)->FriendlyName));
    EXPECT_TRUE(filled.Enabled());
    const auto plain = controls(filled).Add(excel::msoControlButton, automation::Missing{}, true);
    plain.Caption("&Profit && Loss");
    EXPECT_EQ(text(plain, "TooltipText"), "Profit & Loss");
    // The toolbar has the same popup, filled by the same opening.
    const auto on_toolbar = application.CommandBars().FindControl("Kestrune.Toolbar.20");
    EXPECT_EQ(controls(on_toolbar).Count(), 0);
    static_cast<void>(at({"Kestrune", "Format", "Currency"}));
    EXPECT_EQ(captions(controls(on_toolbar)), captions(controls(at({"Kestrune", "Format", "Currency"}))));
}

TEST_F(MenusTest, StatesFollowWhatCanBeDone) {
    run("CreateBRMenus");
    EXPECT_FALSE(at({"Kestrune", "Undo"}).Enabled());
    EXPECT_TRUE(checked(at({"Kestrune", "View", "Toggle Gridlines"})));
    const bool colors = checked(at({"Kestrune", "AutoColor", "AutoColor As You Type"}));
    at({"Kestrune", "AutoColor", "AutoColor As You Type"}).Execute();
    at({"Kestrune", "View", "Toggle Gridlines"}).Execute();
    EXPECT_FALSE(checked(at({"Kestrune", "View", "Toggle Gridlines"})));
    EXPECT_NE(checked(at({"Kestrune", "AutoColor", "AutoColor As You Type"})), colors);
    press("B2", "20");
    EXPECT_TRUE(at({"Kestrune", "Undo"}).Enabled());
    EXPECT_FALSE(at({"Kestrune", "Redo"}).Enabled());
    at({"Kestrune", "Undo"}).Execute();
    EXPECT_FALSE(at({"Kestrune", "Undo"}).Enabled());
    EXPECT_TRUE(at({"Kestrune", "Redo"}).Enabled());

    const bool shown = application.CommandBars().Item("Kestrune").Visible();
    EXPECT_EQ(checked(at({"Kestrune", "Show Toolbar"})), shown);
    run("ToggleToolbar");
    EXPECT_EQ(application.CommandBars().Item("Kestrune").Visible(), !shown);
    EXPECT_EQ(checked(at({"Kestrune", "Show Toolbar"})), !shown);
}

TEST_F(MenusTest, KeysStandBesideTheCommands) {
    run("CreateBRMenus");
    const auto copy = at({"Kestrune", "Smart Tools", "Smart Copy Right"});
    EXPECT_EQ(text(copy, "ShortcutText"), "Ctrl+Shift+R");
    EXPECT_EQ(text(copy, "TooltipText"), "Smart Copy Right.  Shortcut: Ctrl+Shift+R");
    EXPECT_EQ(text(at({"Kestrune", "Format", "Currency"}), "TooltipText"), "Currency.  Shortcut: Ctrl+Shift+4");
    const auto dates = at({"Kestrune", "Smart Tools", "Smart Fill Dates"});
    EXPECT_EQ(text(dates, "ShortcutText"), "");
    EXPECT_EQ(text(dates, "TooltipText"), "Smart Fill Dates.  [No shortcut assigned]");
}

TEST_F(MenusTest, TheTutorialOpensItsLessonsAndNothingElse) {
    run("CreateBRMenus");
    const auto lesson = at({"BR Tutorial", "Operating Assumptions", "Historicals", "Row Headings"});
    EXPECT_EQ(lesson.Parameter(), "RowHeadings.xls");
    EXPECT_EQ(text(lesson, "OnAction"), "mDOM.ShowLesson");
    EXPECT_EQ(at({"BR Tutorial", "About This Menu"}).Caption(), "About This Menu");
    EXPECT_EQ(at({"BR Tutorial", "Cash Flow Statement", "Scenario Analysis", 1}).Parameter(), "RestorePredeal.xls");
    std::int32_t lessons = 0;
    walk(controls(at({"BR Tutorial"})), [&](const excel::CommandBarControl& control) {
        if (!is_popup(control) && text(control, "OnAction") == "mDOM.ShowLesson") ++lessons;
    });
    EXPECT_EQ(lessons, 57);
    for (const LessonRow& row : lesson_tree()) {
        EXPECT_EQ(row.level == 3, row.file.ends_with(".xls")) << row.caption;
    }

    // Not installed here: told, once each, as is what is no lesson.
    const std::size_t before = presenter.messages().size();
    lesson.Execute();
    ASSERT_EQ(presenter.messages().size(), before + 1);
    EXPECT_THAT(presenter.messages().back().text, testing::StartsWith("The lesson workbook could not be opened."));
    for (const char* name : {"../secret.xls", "..\\secret.xls", "C:\\secret.xls", "/etc/passwd", "rowheadings.xls"}) {
        automation::call(*global, "ShowLesson", {name});
    }
    EXPECT_EQ(presenter.messages().size(), before + 6);
    EXPECT_EQ(session.workbooks().size(), 1);
}

TEST_F(MenusTest, BoxesSayWhatTheyAreAbout) {
    struct Box {
        const char* member;
        const char* title;
        std::vector<const char*> texts;
    };
    for (const Box& box : {
             Box{"AboutSmartCycles", "About SmartCycles", {"up to ten related formats", "\n\nYou can edit these"}},
             Box{"AboutBRPaintbrush", "About BR Paintbrush", {"two significant advantages:\n\nFirst, "}},
             Box{"AboutHidingAndUnhiding",
                 "About Hiding and Unhiding",
                 {"major weakness:  It makes",
                  "try 'Group Rows (shortcut not set)' or 'Group Columns (shortcut not set)' "
                  "in this menu to get started.  Try 'Unhide Rows' (shortcut not set) to fix"}},
             Box{"AboutTrainingMenu",
                 "About the BR Tutorial Menu",
                 {"using the 'Toggle Window Size' feature (shortcut"}},
             Box{"ShowAboutBrannoch", "About Brannoch", {"Brannoch Kestrune 0."}},
         }) {
        run(box.member);
        ASSERT_FALSE(presenter.messages().empty()) << box.member;
        const forms::Message& shown = presenter.messages().back();
        EXPECT_EQ(shown.caption, std::string("Brannoch Kestrune -- ") + box.title);
        EXPECT_EQ(shown.buttons, forms::vbInformation);
        for (const char* text : box.texts) EXPECT_THAT(shown.text, testing::HasSubstr(text));
    }
}

TEST_F(MenusTest, TheExamplesWorkbookLearnsAboutTheUsersCycles) {
    const Value info = automation::call(*global, "CustomSmartCycleInfo", {1});
    ASSERT_TRUE(info.array());
    EXPECT_EQ(info.array()->at(0), Value("My Header SmartCycle"));
    EXPECT_EQ(info.array()->at(1), Value("BR Header"));
    EXPECT_EQ(info.array()->elements().size(), 7);
    for (const std::int32_t none : {0, 16, -1}) {
        EXPECT_TRUE(automation::call(*global, "CustomSmartCycleInfo", {none}).is(Value::Kind::Empty));
    }
}

}  // namespace
}  // namespace kestrune::menus
