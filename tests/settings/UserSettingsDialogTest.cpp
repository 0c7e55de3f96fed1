// The settings dialog, as a person works with it.
#include <map>

#include "automation/Object.h"
#include "automation/Text.h"
#include "core/iGlobal.h"
#include "forms/Form.h"
#include "settings/LiveSettings.h"
#include "settings/PreferencesTest.h"
#include "settings/SettingsText.h"
#include "settings/mReadWrite.h"

namespace kestrune::settings {
namespace {

using core::Text;
using forms::Form;
using forms::Key;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct UserSettingsDialogTest : PreferencesTest {
    UserSettingsDialogTest() {
        load_settings(shared, false);
        file = bytes("UserPreferences.xml");
        in_use = lines_of(shared.settings());
    }
    void show(forms::ScriptedPresenter::FormScript script) {
        presenter.work_next(std::move(script));
        core::iGlobal global(std::shared_ptr<core::SharedState>(std::shared_ptr<void>(), &shared));
        automation::call(global, "ShowUserSettings");
    }
    [[nodiscard]] std::string text(Text number) const { return shared.general().message(number); }
    [[nodiscard]] std::vector<std::string> saved() const { return lines_of(*load_preferences(shared, own_path())); }
    void expect_nothing_changed() const {
        EXPECT_EQ(bytes("UserPreferences.xml"), file);
        EXPECT_EQ(lines_of(shared.settings()), in_use);
    }
    static void page(Form& form, int number) { form.choose(form["tabSettings"], number); }
    static void choose(Form& form, const char* list, const char* item) {
        form.choose(form[list], form[list].place_of(item));
        ASSERT_EQ(form[list].item(form[list].ListIndex(), 0), item);
    }
    static void press(Form& form, const char* button) {
        ASSERT_TRUE(form[button].usable()) << button;
        form.click(form[button]);
    }

    std::string file;
    std::vector<std::string> in_use;
};

// Every page is worked with.
void change_everywhere(Form& form) {
    using T = UserSettingsDialogTest;
    form.type(form["txtZoomInterval"], "12");
    T::choose(form, "cmbSheetStyle", "BR Arial");
    T::page(form, 1);
    form.type(form["cmbInputColor"], "#010203");
    form.click(form["ckbAutoColorText"]);
    T::page(form, 2);
    form.click(form["ckbShowCopyDown"]);
    T::page(form, 3);
    T::choose(form, "lstStyleToggles", "Percent SmartCycle");
    form.type(form["txtStyleToggleName"], "Shares");
    T::choose(form, "lstToggleStyles", "BR Percent One Decimal");
    T::press(form, "btnStyleUp");
    T::choose(form, "lstAllStyles", "BR Halves");
    T::press(form, "btnAddStyle");
    T::page(form, 4);
    T::choose(form, "lstLongToggles", "Row Height SmartCycle");
    T::choose(form, "lstSettings", "17");
    form.type(form["cmbSetting"], "12.75");
    T::press(form, "btnAddSetting");
    T::press(form, "btnSettingUp");
    T::page(form, 5);
    T::choose(form, "lstStyles", "BR Halves");
    T::press(form, "btnDuplicateStyle");
    form.type(form["txtStyleName"], "Half Years");
    T::press(form, "btnRenameStyle");
}

TEST_F(UserSettingsDialogTest, SavesAndHandsOverWhatEveryPageTook) {
    const auto in_cycle = [](const styles::cStyleToggle& cycle) {
        std::vector<std::string> names;
        for (std::int32_t i = 1; i <= cycle.Styles->Count(); ++i) names.push_back(cycle.Styles->Item(i)->FriendlyName);
        return names;
    };
    show([](Form& form) {
        change_everywhere(form);
        form.press(Key::Enter);
    });
    EXPECT_THAT(messages(), IsEmpty());
    const cUserSettings& now = shared.settings();
    EXPECT_EQ(saved(), lines_of(now));
    EXPECT_EQ(now.ZoomInterval, 12);
    EXPECT_EQ(now.SheetStyle->FriendlyName, "BR Arial");
    EXPECT_EQ(automation::to_integer(automation::get(*shared.spreadsheet().iAutoColor(), "InputColor")), 0x030201);
    EXPECT_FALSE(now.SmartCopyDown.Show);
    const auto& percent = *now.cycle(StyleCycle::PercentStyleToggle);
    EXPECT_EQ(percent.Name, "Shares");
    EXPECT_THAT(in_cycle(percent), ElementsAre("BR Percent One Decimal", "BR Halves", "BR Percent No Decimals",
                                               "BR Percent Two Decimals", "BR General"));
    const auto& heights = *now.cycle(NumericCycle::RowHeightToggle);
    EXPECT_THAT(heights.Settings, ElementsAre(8, 12.75, 17, 34));
    EXPECT_THAT(heights.LookFors, ElementsAre(8, 12.75, 17, 34));
    const auto made = now.Styles->Item("Half Years");
    ASSERT_TRUE(made);
    EXPECT_EQ(made->MyIndex(), now.Styles->Item("BR Halves")->MyIndex() + 1);
    EXPECT_EQ(made->NumberFormat, "# ?/2");
}

TEST_F(UserSettingsDialogTest, CancelLeavesNoTraceAndApplyKeepsWhatItTook) {
    show([](Form& form) {
        change_everywhere(form);
        form.press(Key::Escape);
    });
    expect_nothing_changed();
    show([this](Form& form) {
        form.type(form["txtZoomInterval"], "12");
        press(form, "btnApply");
        EXPECT_TRUE(form.Visible());
        form.type(form["txtZoomInterval"], "13");
        form.close();
    });
    EXPECT_EQ(shared.settings().ZoomInterval, 12);
    EXPECT_EQ(saved(), lines_of(shared.settings()));
}

TEST_F(UserSettingsDialogTest, RefusesWhatCannotBeAndGoesThere) {
    show([this](Form& form) {
        form.type(form["txtZoomInterval"], "2.5");
        page(form, 5);
        form.press(Key::Enter);
        EXPECT_THAT(messages(), ElementsAre(text(Text::ZoomOutOfRange)));
        EXPECT_EQ(form.ActiveControl(), &form["txtZoomInterval"]);
        form.type(form["txtZoomInterval"], "5");
        page(form, 1);
        form.type(form["cmbFormulaColor"], "blau");
        form.press(Key::Enter);
        EXPECT_THAT(messages(), ElementsAre(text(Text::NoColor) + "blau"));
        page(form, 3);
        form.type(form["txtStyleToggleName"], "indent smartcycle");
        press(form, "btnRenameStyleToggle");
        EXPECT_THAT(messages(), ElementsAre(text(Text::CycleNameTaken) + "indent smartcycle"));
        EXPECT_EQ(form["txtStyleToggleName"].Text(), "General Number SmartCycle");
        choose(form, "lstAllStyles", "BR General");
        press(form, "btnAddStyle");
        EXPECT_THAT(messages(), ElementsAre(text(Text::StyleIsInCycle) + "BR General"));
        page(form, 4);
        for (const char* value : {"3", "16", "1.5", "x"}) {
            form.type(form["cmbSetting"], value);
            press(form, "btnAddSetting");
        }
        EXPECT_THAT(messages(), ElementsAre(text(Text::ValueIsInCycle) + "3", text(Text::NoIndent),
                                            text(Text::NoIndent), text(Text::NoIndent)));
        choose(form, "lstLongToggles", "My Color SmartCycle 4");
        form.type(form["cmbSetting"], "#00ff00");
        press(form, "btnAddSetting");
        EXPECT_THAT(messages(), ElementsAre(text(Text::ValueIsInCycle) + "Bright Green"));
        form.close();
    });
    expect_nothing_changed();
}

TEST_F(UserSettingsDialogTest, StylesKeepTheirNamesApartAndWhatUsesThemFollows) {
    shared.settings().Styles->Item("BR Tenths")->AccessLevel = styles::protected_style;
    show([this](Form& form) {
        page(form, 5);
        choose(form, "lstStyles", "BR Tenths");
        EXPECT_FALSE(form["txtStyleName"].Enabled() || form["btnRemoveStyle"].Enabled());
        choose(form, "lstStyles", "BR Halves");
        for (const char* name : {"br thirds", "BR Standard Half", " "}) {
            form.type(form["txtStyleName"], name);
            press(form, "btnRenameStyle");
        }
        EXPECT_THAT(messages(),
                    ElementsAre(text(Text::StyleNameTaken) + "br thirds",
                                text(Text::StyleNameIsStandard) + "BR Standard Half", text(Text::StyleNameMissing)));
        choose(form, "lstStyles", "BR Times New Roman");
        press(form, "btnRemoveStyle");
        EXPECT_THAT(messages(), ElementsAre(text(Text::StyleIsNeeded) + "the sheet style: BR Times New Roman"));
        choose(form, "lstStyles", "BR Arial");
        presenter.answer_next(forms::vbCancel);
        press(form, "btnRemoveStyle");
        EXPECT_EQ(form["txtStyleName"].Text(), "BR Arial");
        press(form, "btnRemoveStyle");
        EXPECT_THAT(messages(), testing::Each(HasSubstr("My Font SmartCycle")));
        choose(form, "lstStyles", "BR General");
        form.type(form["txtStyleName"], "Plain");
        form.press(Key::Enter);
    });
    const cUserSettings& now = shared.settings();
    EXPECT_FALSE(now.Styles->Item("BR Arial"));
    EXPECT_FALSE(now.cycle(StyleCycle::MyStyleToggle5)->Styles->Item("BR Arial"));
    EXPECT_EQ(now.SmartFillNumbers.Style, "Plain");
    EXPECT_TRUE(now.cycle(StyleCycle::PercentStyleToggle)->Styles->Item("Plain"));
    EXPECT_EQ(saved(), lines_of(now));
}

TEST_F(UserSettingsDialogTest, AFailedSaveIsToldAndNothingIsLost) {
    std::filesystem::remove(folder / "UserPreferences.xml");
    std::filesystem::create_directory(folder / "UserPreferences.xml");
    show([this](Form& form) {
        form.type(form["txtZoomInterval"], "12");
        form.press(Key::Enter);
        EXPECT_THAT(messages(), ElementsAre(HasSubstr(text(Text::SettingsNotSaved))));
        EXPECT_EQ(lines_of(shared.settings()), in_use);
        ASSERT_TRUE(form.Visible());
        std::filesystem::remove(folder / "UserPreferences.xml");
        form.press(Key::Enter);
    });
    EXPECT_EQ(shared.settings().ZoomInterval, 12);
    EXPECT_EQ(saved(), lines_of(shared.settings()));
}

TEST_F(UserSettingsDialogTest, ImportsExportsAndRestoresWhatItShows) {
    const auto press_with_file = [this](Form& form, const char* button, const char* name) {
        presenter.choose_next(path(name));
        press(form, button);
    };
    show([&](Form& form) {
        form.type(form["txtZoomInterval"], "12");
        press_with_file(form, "btnExport", "mine.xml");
        press(form, "btnRestore");
        EXPECT_EQ(form["txtZoomInterval"].Text(), "5");
        press_with_file(form, "btnImport", "mine.xml");
        EXPECT_EQ(form["txtZoomInterval"].Text(), "12");
        form.press(Key::Escape);
    });
    expect_nothing_changed();
}

TEST_F(UserSettingsDialogTest, ToolsShowTheirOptionsAndTheNoteNamesTheSmartCycle) {
    show([this](Form& form) {
        page(form, 2);
        presenter.work_next([](Form& tool) {
            tool.type(tool["txtInterval"], "4");
            tool.press(Key::Enter);
        });
        press(form, "btnCopyRight");
        page(form, 1);
        form.double_click(form["lblAutoColorNote"]);
        EXPECT_THAT(messages(),
                    ElementsAre(HasSubstr("'" + shared.spreadsheet().auto_color_smart_cycle() + "', and it means")));
        EXPECT_EQ(lines_of(shared.settings()), in_use) << "before OK";
        form.press(Key::Enter);
    });
    EXPECT_EQ(shared.settings().SmartCopyRight.IntervalValues, 4);
}

TEST_F(UserSettingsDialogTest, AnAccessKeyGoesToOneControlOfAPage) {
    show([](Form& form) {
        for (int number = 0; number < 6; ++number) {
            page(form, number);
            std::map<char, std::string> owners;
            for (const forms::Control& control : form.controls()) {
                const char letter = automation::lower(control.Accelerator());
                if (!letter || !control.shown()) continue;
                const auto [owner, first] = owners.emplace(letter, control.Name());
                EXPECT_TRUE(first) << letter << " of " << owner->second << " and " << control.Name();
            }
            EXPECT_FALSE(owners.empty());
        }
        form.press(Key::Escape);
    });
}

}  // namespace
}  // namespace kestrune::settings
