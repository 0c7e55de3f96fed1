#include "brxllib/LibraryInHost.h"

namespace kestrune::brxllib {
namespace {

using automation::get;
using automation::to_object;
using automation::to_text;

struct MenusTest : LibraryInHost {
    [[nodiscard]] static ObjectRef controls(const ObjectRef& parent) { return to_object(get(*parent, "Controls")); }
    // The captions on a bar or a popup, "|" in front of each that begins a group.
    [[nodiscard]] static std::string captions(const ObjectRef& parent) {
        std::string text;
        const ObjectRef all = controls(parent);
        for (std::int32_t i = 1; i <= automation::to_integer(get(*all, "Count")); ++i) {
            const ObjectRef control = to_object(get(*all, "Item", {i}));
            if (automation::to_boolean(get(*control, "BeginGroup"))) text += "|";
            text += to_text(get(*control, "Caption")) + ",";
        }
        return text;
    }
    static std::string property(const ObjectRef& control, std::string_view name) {
        return to_text(get(*control, name));
    }

    ObjectRef bar() const { return library->worksheet_menu_bar(); }
};

TEST_F(MenusTest, AMenuIsBuiltFoundAndTakenAway) {
    const std::string own = captions(bar());
    EXPECT_EQ(own, "&File,&Edit,&View,&Insert,F&ormat,&Tools,&Data,&Window,&Help,");
    const ObjectRef menu = library->add_popup(bar(), "Kestrun&e", {}, {}, false, 9);
    EXPECT_THAT(captions(bar()), testing::EndsWith("&Window,Kestrun&e,&Help,"));
    const ObjectRef popup = library->add_popup(menu, "&Currency", "mDOM.UpdateCurrencyStyleTogglePopup", "cycle");
    library->add_button(menu, {.caption = "Smart Copy &Right",
                               .on_action = "mDOM.RunMacro",
                               .parameter = "0",
                               .tag = "copy",
                               .shortcut = "Ctrl+R",
                               .face_id = 59,
                               .begin_group = true});
    library->add_button(menu, {.caption = "R&&D", .on_action = "mDOM.RunMacro", .before = 1});
    EXPECT_EQ(captions(menu), "R&&D,&Currency,|Smart Copy &Right,");
    const ObjectRef button = library->find_control_by_tag("copy");
    ASSERT_TRUE(button);
    for (const auto& [name, value] :
         std::initializer_list<std::pair<const char*, const char*>>{{"Caption", "Smart Copy &Right"},
                                                                    {"OnAction", "mDOM.RunMacro"},
                                                                    {"Parameter", "0"},
                                                                    {"ShortcutText", "Ctrl+R"},
                                                                    {"FaceId", "59"},
                                                                    {"TooltipText", "Smart Copy Right"},
                                                                    {"Index", "3"}})
        EXPECT_EQ(property(button, name), value) << name;

    for (const char* caption : {"Kestrun&e", "kestrune", "&Kestrune"})
        EXPECT_TRUE(library->find_control(bar(), caption)) << caption;
    EXPECT_TRUE(library->find_control(menu, "r&&d"));
    for (const char* caption : {"RD", "Kestrun", "Smart Copy &Right"})
        EXPECT_FALSE(library->find_control(caption == std::string("RD") ? menu : bar(), caption)) << caption;
    EXPECT_FALSE(library->find_control_by_tag("nobody's"));

    library->set_control_checked(button, true);
    library->set_control_enabled(popup, false);
    library->set_control_caption(popup, "C&urrency");
    library->set_control_tooltip(button, "[No shortcut assigned]");
    EXPECT_EQ(property(button, "State") + property(popup, "Enabled") + property(popup, "Caption"), "-1FalseC&urrency");
    EXPECT_EQ(property(button, "TooltipText"), "[No shortcut assigned]");

    EXPECT_EQ(library->clear_controls(menu), 3);
    EXPECT_EQ(captions(menu), "");
    EXPECT_THROW(property(button, "Caption"), automation::AutomationError) << "a deleted control";
    EXPECT_EQ(library->remove_controls(bar(), "KESTRUNE"), 1);
    EXPECT_EQ(library->remove_controls(bar(), "Kestrune"), 0);
    EXPECT_EQ(library->remove_controls(bar(), "File") + library->clear_controls(bar()), 0) << "Excel's own stay";
    EXPECT_EQ(captions(bar()), own);
}

TEST_F(MenusTest, AClickRunsTheActionWithItsParameter) {
    std::vector<std::string> ran;
    session.macros.add({}, "mDOM.RunMacro", [&](auto) {
        ran.push_back(library->clicked_parameter());
        return Value();
    });
    session.macros.add({}, "mDOM.Fill", [&](auto) {
        const ObjectRef popup = library->find_control_by_tag("currency");
        library->clear_controls(popup);
        for (const char* step : {"20.1", "20.2", "20.3"})
            library->add_button(popup, {.caption = step, .on_action = "mDOM.RunMacro", .parameter = step});
        return Value();
    });
    const ObjectRef popup = library->add_popup(bar(), "Currency", "mDOM.Fill", "currency");
    for (int opened = 0; opened < 2; ++opened) automation::call(*popup, "Execute");
    EXPECT_EQ(captions(popup), "20.1,20.2,20.3,");
    const ObjectRef third = library->find_control(popup, "20.3");
    automation::call(*third, "Execute");
    EXPECT_EQ(ran, std::vector<std::string>{"20.3"});
    EXPECT_EQ(library->clicked_parameter(), "") << "nothing runs now";
    library->set_control_enabled(third, false);
    EXPECT_THROW(automation::call(*third, "Execute"), automation::AutomationError);
    automation::put(*third, "Enabled", true);
    automation::put(*third, "OnAction", "mDOM.Nobody");
    EXPECT_THROW(automation::call(*third, "Execute"), automation::AutomationError);
    EXPECT_EQ(ran.size(), 1U);
}

TEST_F(MenusTest, ToolbarsAndWhatBarsRefuse) {
    const ObjectRef toolbar = library->toolbar("Kestrune");
    automation::put(*toolbar, "Visible", true);
    EXPECT_EQ(property(library->toolbar("KESTRUNE"), "Visible"), "True") << "the same one";
    library->add_button(toolbar, {.caption = "Currency", .on_action = "mDOM.RunMacro", .parameter = "20"});
    EXPECT_TRUE(library->remove_toolbar("Kestrune"));
    EXPECT_FALSE(library->remove_toolbar("Kestrune"));
    EXPECT_THROW(property(toolbar, "Name"), automation::AutomationError);
    EXPECT_THROW((void)library->remove_toolbar("Standard"), automation::AutomationError) << "Excel's own";
    EXPECT_THROW((void)library->add_popup(bar(), "x", {}, {}, false, 99), automation::AutomationError);
    EXPECT_THROW((void)library->add_popup(nullptr, "x"), automation::AutomationError);
    const ObjectRef bars = to_object(get(*application.object(), "CommandBars"));
    EXPECT_THROW(automation::call(*bars, "Add", {"standard"}), automation::AutomationError);
    EXPECT_THROW(get(*bars, "Item", {99}), automation::AutomationError);
    EXPECT_EQ(property(to_object(get(*bars, "ActiveMenuBar")), "Name"), "Worksheet Menu Bar");
}

}  // namespace
}  // namespace kestrune::brxllib
