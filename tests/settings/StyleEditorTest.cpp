// The style editor, as a person works with it from the settings dialog.
#include "automation/Object.h"
#include "core/iGlobal.h"
#include "excel/Application.h"
#include "forms/Form.h"
#include "forms/FormFill.h"
#include "forms/Looks.h"
#include "host/objects/HostSession.h"
#include "settings/LiveSettings.h"
#include "settings/PreferencesTest.h"
#include "settings/SettingsText.h"
#include "settings/mReadWrite.h"

namespace kestrune::settings {
namespace {

using core::Text;
using forms::Form;
using forms::Key;
using styles::StyleFields;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct StyleEditorTest : PreferencesTest {
    StyleEditorTest() {
        auto model = std::make_unique<host::Workbook>();
        model->add_sheet("Sheet1");
        session.open(std::move(model));
        shared.application = host::make_application(session);
        load_settings(shared, false);
        file = bytes("UserPreferences.xml");
        in_use = lines_of(shared.settings());
    }
    // Works with the settings dialog on its page of styles.
    void show(forms::ScriptedPresenter::FormScript script) {
        presenter.work_next([script = std::move(script)](Form& form) {
            form.choose(form["tabSettings"], 5);
            script(form);
        });
        core::iGlobal global(std::shared_ptr<core::SharedState>(std::shared_ptr<void>(), &shared));
        automation::call(global, "ShowUserSettings");
    }
    static void choose(Form& form, const char* style) {
        form.choose(form["lstStyles"], form["lstStyles"].place_of(style));
    }
    // Presses a button that opens the editor, and works with that.
    void edit(Form& form, const char* button, forms::ScriptedPresenter::FormScript script) {
        ASSERT_TRUE(form[button].usable()) << button;
        presenter.work_next(std::move(script));
        form.click(form[button]);
    }
    // A value put where it belongs, whatever page that is on.
    static void put(Form& editor, const char* name, const std::string& value) {
        const forms::Control* on_page = &editor[name];
        while (on_page->container() && !on_page->container()->is(forms::Kind::Tabs)) on_page = on_page->container();
        if (on_page->container()) editor.choose(editor["tabStyle"], on_page->design().page);
        EXPECT_EQ(forms::enter_value(editor, editor[name], value), "") << name << " = " << value;
    }
    static void put_all(Form& editor, const std::vector<std::pair<const char*, const char*>>& values) {
        for (const auto& [name, value] : values) put(editor, name, value);
    }
    [[nodiscard]] std::string text(Text number) const { return shared.general().message(number); }
    [[nodiscard]] const StyleFields& style(const char* name) const {
        const auto found = shared.settings().Styles->Item(name);
        if (!found) throw std::out_of_range(name);
        return *found;
    }
    void expect_nothing_changed() const {
        EXPECT_EQ(bytes("UserPreferences.xml"), file);
        EXPECT_EQ(lines_of(shared.settings()), in_use);
    }
    [[nodiscard]] excel::Range active_cell() const { return excel::Application(shared.application).ActiveCell(); }

    host::HostSession session;
    std::string file;
    std::vector<std::string> in_use;
};

// What a person enters for one look, and the fields that are to come of it.
struct Entry {
    std::vector<std::pair<const char*, const char*>> values;
    StyleFields expected;
};

std::vector<Entry> entries() {
    StyleFields one;
    one.FriendlyName = "One";
    one.NumberFormat = "0.0\" x\"";
    one.HorizontalAlignment = excel::xlCenterAcrossSelection;
    one.VerticalAlignment = excel::xlDistributed;
    one.Indents = 4;
    one.Orientation = -45;
    one.WrapText = one.FontStrikeThrough = one.Bold = true;
    one.FontName = "Courier New";
    one.Size = 13;
    one.Underline = excel::xlUnderlineStyleDoubleAccounting;
    one.FontColor = one.AsFontColor = 0x0000FF;
    one.BorderLeft = one.BorderRight = one.BordersInternal = true;
    one.BorderStyle = excel::xlDashDot;
    one.BorderWeight = excel::xlMedium;
    one.BorderColor = 0xFF0000;
    one.AsBorderColorIndex = 5;
    one.CellColor = 0x00FFFF;
    one.AsCellColorIndex = 6;
    one.Category = styles::category::date;
    one.Comments = "House, since 2024";
    StyleFields two;
    two.FriendlyName = "Two";
    two.NumberFormat = "@";
    two.HorizontalAlignment = excel::xlRight;
    two.VerticalAlignment = excel::xlTop;
    two.Orientation = excel::xlUpward;
    two.ShrinkToFit = two.Italics = true;
    two.BorderTop = two.BorderBottom = true;
    two.BorderStyle = excel::xlDouble;
    two.BorderWeight = excel::xlThick;
    two.AsBorderColorIndex = 1;
    // The palette's nearest: #0102FF is Blue to it.
    two.FontColor = 0xFF0201;
    two.AsFontColor = 0xFF0000;
    two.Category = styles::category::long_number;
    two.bTransIndents = two.bTransFontSetting = two.bTransFontSize = two.bTransCellColor = two.bTransWrapTest =
        two.bTransStrikeThrough = two.bTransUnderline = true;
    return {
        {{{"txtName", " One "},
          {"optDate", "True"},
          {"txtComments", "House, since 2024"},
          {"txtNumberFormat", "0.0\" x\""},
          {"cmbHorizontalAlignment", "Center across selection"},
          {"cmbVerticalAlignment", "Distributed"},
          {"spnIndents", "4"},
          {"cmbOrientation", "-45"},
          {"ckbWrapTextOn", "True"},
          {"cmbFontName", "courier new"},
          {"cmbFontName", "Courier New"},
          {"cmbFontStyle", "#2"},
          {"cmbFontSize", "13"},
          {"cmbUnderline", "Double accounting"},
          {"ckbStrikeThroughOn", "True"},
          {"cmbFontColor", "red"},
          {"btnAllSides", "click"},
          {"ckbBorderTop", "False"},
          {"ckbBorderBottom", "no"},
          {"cmbBorderStyle", "Dash dot"},
          {"cmbBorderStyle", "#5"},
          {"cmbBorderWeight", "Medium"},
          {"cmbBorderColor", "#0000FF"},
          {"ckbBordersInternal", "True"},
          {"cmbCellColor", "Yellow"}},
         one},
        {{{"txtName", "Two"},
          {"optDataLong", "True"},
          {"lstNumberFormats", "@"},
          {"cmbHorizontalAlignment", "Right"},
          {"cmbVerticalAlignment", "Top"},
          {"ckbIndents", "False"},
          {"cmbOrientation", "90"},
          {"ckbShrinkToFitOn", "True"},
          {"ckbWrapText", "False"},
          {"ckbFontName", "False"},
          {"cmbFontStyle", "Italic"},
          {"ckbFontSize", "False"},
          {"ckbUnderline", "False"},
          {"ckbStrikeThrough", "False"},
          {"cmbFontColor", "#0102FF"},
          {"ckbBorderTop", "True"},
          {"ckbBorderBottom", "True"},
          {"cmbBorderStyle", "Double"},
          {"cmbBorderWeight", "Thick"},
          {"cmbCellColor", "#FFFFFF"},
          {"ckbCellColor", "False"}},
         two},
    };
}

TEST_F(StyleEditorTest, EveryFieldGoesFromTheDialogToTheStyleAndBack) {
    for (const Entry& entry : entries()) {
        show([&](Form& form) {
            edit(form, "btnNewStyle", [&](Form& editor) {
                put_all(editor, entry.values);
                editor.press(Key::Enter);
            });
            EXPECT_EQ(form["txtStyleName"].Text(), entry.expected.FriendlyName);
            // Shown anew and confirmed as it is, the style stays what it is.
            edit(form, "btnEditStyle", [](Form& editor) { editor.press(Key::Enter); });
            form.press(Key::Enter);
        });
        EXPECT_THAT(messages(), IsEmpty());
        const cUserSettings& now = shared.settings();
        cUserSettings made;
        made.Styles->Add(std::make_shared<styles::cStyle>(style(entry.expected.FriendlyName.c_str())));
        cUserSettings expected;
        expected.Styles->Add(std::make_shared<styles::cStyle>(entry.expected));
        EXPECT_EQ(lines_of(made), lines_of(expected));
        EXPECT_EQ(lines_of(*load_preferences(shared, own_path())), lines_of(now));
    }
}

TEST_F(StyleEditorTest, EveryTickIsAFlagOfItsOwn) {
    // In the order of the fields.
    constexpr auto ticks = std::to_array<const char*>(
        {"ckbNumberFormat", "ckbFontName", "ckbFontStyle", "ckbFontSize", "ckbUnderline", "ckbFontColor",
         "ckbCellColor", "ckbHorizontalAlignment", "ckbVerticalAlignment", "ckbOrientation", "ckbIndents",
         "ckbShrinkToFit", "ckbWrapText", "ckbStrikeThrough", "ckbBorders"});
    const auto flags_of = [&] {
        const StyleFields& now = style("BR Halves");
        return std::vector<bool>{
            now.bTransNumberFormat,      now.bTransFontSetting,   now.bTransFontStyle, now.bTransFontSize,
            now.bTransUnderline,         now.bTransFontColor,     now.bTransCellColor, now.bTransHorizontalAlignment,
            now.bTransVerticalAlignment, now.bTransOrientation,   now.bTransIndents,   now.bTransShrinkToFit,
            now.bTransWrapTest,          now.bTransStrikeThrough, now.bTransBorders};
    };
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        show([&](Form& form) {
            choose(form, "BR Halves");
            edit(form, "btnEditStyle", [&](Form& editor) {
                put(editor, "btnSetAll", "click");
                put(editor, ticks[i], "False");
                editor.press(Key::Enter);
            });
            form.press(Key::Enter);
        });
        std::vector<bool> expected(ticks.size());
        expected[i] = true;
        EXPECT_EQ(flags_of(), expected) << ticks[i];
    }
    show([&](Form& form) {
        choose(form, "BR Halves");
        edit(form, "btnEditStyle", [&](Form& editor) {
            put(editor, "btnSetNone", "click");
            for (const char* name : {"txtNumberFormat", "spnIndents", "cmbCellColor", "ckbBorderLeft", "btnAllSides",
                                     "cmbFontStyle", "ckbWrapTextOn"}) {
                EXPECT_FALSE(editor[name].Enabled()) << name;
            }
            // What the style leaves alone may say anything.
            EXPECT_THAT(forms::looks_text(editor["smpStyle"].Looks()), "1234.567 in Arial 10, at the right");
            editor.press(Key::Enter);
        });
        form.press(Key::Enter);
    });
    EXPECT_EQ(flags_of(), std::vector<bool>(ticks.size(), true));
}

TEST_F(StyleEditorTest, TheSampleShowsWhatComesOfEveryChange) {
    show([this](Form& form) {
        edit(form, "btnNewStyle", [](Form& editor) {
            const auto expect = [&](const char* name, const char* value, const char* part) {
                put(editor, name, value);
                EXPECT_THAT(automation::to_text(editor["smpStyle"].Value()), HasSubstr(part)) << name;
            };
            expect("txtNumberFormat", "#,##0.0_);[Red](#,##0.0)", "1,234.6  in Arial 10, at the right");
            expect("cmbSampleValue", "-1234.567", "(1,234.6) in Arial 10, #FF0000, at the right");
            expect("cmbSampleValue", "words", "words in Arial 10");
            expect("txtNumberFormat", "mmm yyyy", "words");
            expect("cmbSampleValue", "2026-03-31", "Mar 2026 in Arial 10, at the right");
            expect("cmbHorizontalAlignment", "Left", "Mar 2026 in Arial 10");
            expect("spnIndents", "2", "indented by 13.5 pt");
            expect("cmbFontStyle", "Bold italic", "Arial 10 bold italic");
            expect("cmbFontSize", "24", "Arial 24 bold italic");
            expect("cmbFontSize", "huge", "Arial 10 bold italic");
            expect("cmbCellColor", "Tan", " on #FFCC99");
            expect("btnAllSides", "click", "0.75 pt line all around");
            expect("cmbBorderStyle", "Dashed", "dashed 0.75 pt line all around");
            expect("cmbOrientation", "Stacked", "stacked");
            put(editor, "ckbCellColor", "False");
            EXPECT_THAT(automation::to_text(editor["smpStyle"].Value()), Not(HasSubstr(" on #")));
            editor.press(Key::Escape);
        });
        form.press(Key::Escape);
    });
    expect_nothing_changed();
}

TEST_F(StyleEditorTest, CapturesTheActiveCellAndLeavesTheTicks) {
    const excel::Range cell = active_cell();
    cell.NumberFormat("0.00%");
    cell.Font().Name("Verdana");
    cell.Font().Color(0x0000FF);
    cell.HorizontalAlignment(excel::xlCenter);
    cell.Borders(excel::xlEdgeTop).LineStyle(excel::xlContinuous);
    show([this](Form& form) {
        edit(form, "btnNewFromCell", [](Form& editor) {
            EXPECT_EQ(editor["txtNumberFormat"].Text(), "0.00%");
            put(editor, "txtName", "Captured");
            editor.press(Key::Enter);
        });
        choose(form, "BR Halves");
        edit(form, "btnEditStyle", [](Form& editor) {
            put(editor, "txtComments", "Kept");
            put(editor, "ckbFontName", "False");
            put(editor, "btnCapture", "click");
            EXPECT_FALSE(editor["ckbFontName"].Checked());
            EXPECT_EQ(editor["cmbFontName"].Text(), "Verdana");
            editor.press(Key::Enter);
        });
        form.press(Key::Enter);
    });
    const StyleFields& captured = style("Captured");
    EXPECT_EQ(captured.FontName, "Verdana");
    EXPECT_EQ(captured.AsFontColor, 0x0000FF);
    EXPECT_TRUE(captured.BorderTop && !captured.BorderLeft && !captured.BorderBottom && !captured.BorderRight);
    EXPECT_EQ(captured.HorizontalAlignment, excel::xlCenter);
    const StyleFields& halves = style("BR Halves");
    EXPECT_EQ(halves.NumberFormat, "0.00%");
    EXPECT_EQ(halves.Comments, "Kept");
    EXPECT_TRUE(halves.bTransFontSetting);
    EXPECT_TRUE(shared.settings().Styles->Item("Captured")->IsApplied(shared, cell));
    // Without a workbook there is nothing to capture, and that is told.
    shared.application = nullptr;
    show([this](Form& form) {
        presenter.work_next([](Form&) { ADD_FAILURE() << "no editor"; });
        form.click(form["btnNewFromCell"]);
        EXPECT_THAT(messages(), ElementsAre(text(Text::NoActiveCell)));
    });
}

TEST_F(StyleEditorTest, CancelLeavesNoTraceAndStandardsAreProtected) {
    shared.settings().Styles->Item("BR Tenths")->AccessLevel = styles::protected_style;
    in_use = lines_of(shared.settings());
    const auto change_and = [](auto end) {
        return [end](Form& editor) {
            put_all(editor, {{"txtName", "Other"}, {"ckbFontColor", "True"}, {"cmbFontColor", "Red"}});
            end(editor);
        };
    };
    const auto escape = change_and([](Form& editor) { editor.press(Key::Escape); });
    show([&](Form& form) {
        choose(form, "BR Halves");
        const auto styles_before = form["lstStyles"].List();
        edit(form, "btnEditStyle", escape);
        edit(form, "btnNewStyle", change_and([](Form& editor) { editor.close(); }));
        edit(form, "btnNewFromCell", escape);
        EXPECT_EQ(form["lstStyles"].List(), styles_before);
        choose(form, "BR Tenths");
        EXPECT_FALSE(form["btnEditStyle"].Enabled());
        form.double_click(form["lstStyles"]);
        EXPECT_THAT(messages(), ElementsAre(text(Text::StyleIsStandard) + "BR Tenths"));
        form.press(Key::Enter);
    });
    EXPECT_EQ(lines_of(shared.settings()), in_use);
    // What the editor took goes with the settings dialog's own copy, too.
    show([&](Form& form) {
        choose(form, "BR Halves");
        presenter.work_next(change_and([](Form& editor) { editor.press(Key::Enter); }));
        form.double_click(form["lstStyles"]);
        EXPECT_EQ(form["txtStyleName"].Text(), "Other");
        form.press(Key::Escape);
    });
    EXPECT_EQ(lines_of(shared.settings()), in_use);
}

TEST_F(StyleEditorTest, RefusesWhatCannotBeAndGoesThere) {
    const std::string format = text(Text::NoNumberFormat);
    const std::vector<std::tuple<const char*, std::string, std::string>> cases{
        {"txtName", "", text(Text::StyleNameMissing)},
        {"txtName", "br general", text(Text::StyleNameTaken) + "br general"},
        {"txtName", "BR Standard Half", text(Text::StyleNameIsStandard) + "BR Standard Half"},
        {"txtNumberFormat", "", format},
        {"txtNumberFormat", "[Mauve]0", format + "[Mauve]0 (\"[Mauve]\" means nothing)"},
        {"txtIndents", "16", text(Text::NoIndent)},
        {"cmbOrientation", "91", text(Text::NoOrientation) + "91"},
        {"cmbFontName", " ", text(Text::NoFontName)},
        {"cmbFontSize", "10.5", text(Text::NoFontSize) + "10.5"},
        {"cmbFontSize", "410", text(Text::NoFontSize) + "410"},
        {"cmbFontColor", "mauvish", text(Text::NoColor) + "mauvish"},
        {"cmbBorderColor", "#12345", text(Text::NoColor) + "#12345"},
        {"cmbCellColor", "none", text(Text::NoColor) + "none"},
    };
    show([&](Form& form) {
        choose(form, "BR Halves");
        edit(form, "btnEditStyle", [&](Form& editor) {
            put(editor, "btnSetAll", "click");
            for (const auto& [name, value, message] : cases) {
                const std::string before = editor[name].Text();
                put(editor, name, value);
                editor.choose(editor["tabStyle"], 0);
                editor.press(Key::Enter);
                ASSERT_TRUE(editor.Visible()) << name << " " << value;
                EXPECT_THAT(messages(), ElementsAre(message));
                EXPECT_EQ(editor.ActiveControl(), &editor[name]);
                put(editor, name, before);
            }
            editor.press(Key::Enter);
            EXPECT_FALSE(editor.Visible());
        });
        form.press(Key::Escape);
    });
    expect_nothing_changed();
}

TEST_F(StyleEditorTest, EveryPageIsReachedByItsKeys) {
    show([&](Form& form) {
        edit(form, "btnNewStyle", [](Form& editor) {
            for (std::int32_t page = 0; page < 6; ++page) {
                EXPECT_EQ(editor["tabStyle"].ListIndex(), page);
                std::string keys;
                for (const forms::Control& control : editor.controls()) {
                    if (!control.shown() || control.Accelerator() == 0) continue;
                    const char key = automation::lower(control.Accelerator());
                    EXPECT_EQ(keys.find(key), std::string::npos) << key << " twice, of " << control.Name();
                    keys += key;
                }
                // Tab goes round all that can be used, and comes back.
                const forms::Control* first = editor.ActiveControl();
                std::size_t stops = 0;
                do {
                    editor.press(Key::Tab);
                    ++stops;
                } while (editor.ActiveControl() != first && stops < 100);
                EXPECT_GE(stops, 6U);
                EXPECT_LT(stops, 40U);
                editor.press(Key::NextPage);
            }
            editor.press(Key::Escape);
        });
        form.press(Key::Escape);
    });
}

}  // namespace
}  // namespace kestrune::settings
