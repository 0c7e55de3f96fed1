#include <gmock/gmock.h>

#include <functional>
#include <sstream>
#include <stdexcept>

#include "forms/ConsolePresenter.h"
#include "forms/FormText.h"
#include "forms/SampleForm.h"
#include "forms/ScriptedPresenter.h"

namespace kestrune::forms {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

struct FormTest : testing::Test {
    // Has the form shown, with the focus in its first box and nothing written down yet.
    void work(const std::function<void()>& script) {
        presenter.work_next([&](Form&) {
            form.happened();
            script();
        });
        form.Show(presenter);
    }
    [[nodiscard]] std::string focus() const {
        return form.ActiveControl() ? std::string(form.ActiveControl()->Name()) : "none";
    }

    ScriptedPresenter presenter;
    SampleForm form;
};

TEST_F(FormTest, ComesAndGoesInMSFormsOrder) {
    std::vector<std::string> before;
    presenter.work_next([&](Form&) { before = form.happened(); });
    form.Show(presenter);
    EXPECT_THAT(before, ElementsAre("Initialize", "txtName Enter", "Activate"));
    EXPECT_THAT(form.happened(),
                ElementsAre("txtName Exit", "btnOK Enter", "btnOK Click", "QueryClose", "btnOK Exit", "Terminate"));
    EXPECT_EQ(form.pressed(), &form["btnOK"]);
    work([&] { form.Hide(); });
    EXPECT_THAT(form.happened(), IsEmpty());
    presenter.work_next([&](Form&) {
        EXPECT_THAT(form.happened(), ElementsAre("txtName Enter", "Activate")) << "it was still loaded";
        form.cancels = "QueryClose";
        form.close();
        EXPECT_TRUE(form.Visible());
        form.cancels.clear();
        form.close();
    });
    form.Show(presenter);
    EXPECT_THAT(form.happened(), ElementsAre("QueryClose", "QueryClose", "txtName Exit", "Terminate"));
    EXPECT_EQ(form.pressed(), nullptr);
}

TEST_F(FormTest, FiresWhatMSFormsFires) {
    const struct {
        const char* what;
        std::function<void()> act;
        std::vector<std::string> events;
    } cases[] = {
        {"typing, key by key",
         [&] {
             form.type(form["txtName"], "a");
             form.type(form["txtName"], "ab");
         },
         {"txtName Change", "txtName Change"}},
        {"leaving a changed box",
         [&] { form.press(Key::Tab); },
         {"txtName BeforeUpdate", "txtName AfterUpdate", "txtName Exit", "optAll Enter"}},
        {"choosing",
         [&] { form.click(form["optSome"]); },
         {"optAll Exit", "optSome Enter", "optSome Change", "optSome Click", "optSome BeforeUpdate",
          "optSome AfterUpdate"}},
        {"choosing what is chosen", [&] { form.click(form["optSome"]); }, {}},
        {"code that chooses another",
         [&] { form["optAll"].Checked(true); },
         {"optSome Change", "optAll Change", "optAll Click"}},
        {"an arrow in the group", [&] { form.press(Key::Up); }, {"optSome Exit", "optAll Enter"}},
        {"ticking by key",
         [&] {
             form.go_to(form["ckbBold"]);
             form.press(Key::Space);
         },
         {"optAll Exit", "ckbBold Enter", "ckbBold Change", "ckbBold Click", "ckbBold BeforeUpdate",
          "ckbBold AfterUpdate"}},
        {"the spin button of a box",
         [&] { form.spin(form["spnRows"], true); },
         {"ckbBold Exit", "txtRows Enter", "spnRows Change", "txtRows Change", "spnRows SpinUp"}},
        {"its arrow below the least number",
         [&] {
             form.press(Key::Down);
             form.press(Key::Down);
         },
         {"spnRows Change", "txtRows Change", "spnRows SpinDown", "spnRows SpinDown"}},
        {"an item of a list",
         [&] { form.choose(form["lstColors"], 1); },
         {"txtRows BeforeUpdate", "txtRows AfterUpdate", "txtRows Exit", "lstColors Enter", "lstColors Change",
          "lstColors Click", "lstColors BeforeUpdate", "lstColors AfterUpdate"}},
        {"code that chooses an item", [&] { form["cmbColor"].Text("grey"); }, {"cmbColor Change", "cmbColor Click"}},
        {"a page",
         [&] { form.choose(form["mpaMore"], 1); },
         {"lstColors Exit", "mpaMore Enter", "mpaMore Change", "mpaMore BeforeUpdate", "mpaMore AfterUpdate"}},
        {"what cannot be seen, or is disabled",
         [&] {
             form["ckbBold"].Enabled(false);
             form.click(form["ckbBold"]);
             form.click(form["ckbLocked"]);
             EXPECT_FALSE(form.go_to(form["ckbLocked"]));
             form["ckbBold"].Enabled(true);
         },
         {}},
    };
    work([&] {
        for (const auto& one : cases) {
            one.act();
            EXPECT_THAT(form.happened(), ElementsAreArray(one.events)) << one.what;
        }
    });
    EXPECT_EQ(form["cmbColor"].Text(), "Grey");
}

TEST_F(FormTest, HandlersCanKeepTheFocus) {
    work([&] {
        form.type(form["txtName"], "no");
        for (const char* event : {"txtName BeforeUpdate", "txtName Exit"}) {
            form.cancels = event;
            form.press(Key::Tab);
            EXPECT_EQ(focus(), "txtName") << event;
            form.press(Key::Enter);
            EXPECT_TRUE(form.Visible()) << "OK was pressed although the box did not let go";
        }
        form.cancels.clear();
    });
    EXPECT_FALSE(form.Visible());
}

TEST_F(FormTest, GoesThroughItsControlsByKey) {
    work([&] {
        std::string way;
        const auto walk = [&](Key key, int steps) {
            way.clear();
            for (int i = 0; i < steps; ++i) {
                form.press(key);
                way += focus() + " ";
            }
            return way;
        };
        EXPECT_EQ(walk(Key::Tab, 10),
                  "optAll txtRows ckbBold cmbColor lstColors mpaMore ckbLocked btnOK btnCancel txtName ");
        form["optSome"].Checked(true);
        form["ckbBold"].Visible(false);
        form["mpaMore"].ListIndex(1);
        EXPECT_EQ(walk(Key::BackTab, 9),
                  "btnCancel btnOK ckbHidden mpaMore lstColors cmbColor txtRows optSome txtName ")
            << "a group is entered where it is on";
        form.go_to(form["optSome"]);
        EXPECT_EQ(walk(Key::Down, 3), "optNone optAll optSome ");
        EXPECT_TRUE(form["optSome"].Checked());
        form["optNone"].Enabled(false);
        EXPECT_EQ(walk(Key::Right, 2), "optAll optSome ");
        const struct {
            char letter;
            const char* focus;
        } access[] = {{'n', "txtName"}, {'a', "optAll"}, {'q', "optAll"}, {'b', "optAll"}};
        for (const auto& [letter, there] : access) {
            form.press_access_key(letter);
            EXPECT_EQ(focus(), there) << letter;
        }
        EXPECT_TRUE(form["optAll"].Checked());
        // Two of a letter: it only leads from one to the other.
        form["ckbHidden"].Accelerator('A');
        EXPECT_TRUE(form.press_access_key('A'));
        EXPECT_EQ(focus(), "ckbHidden");
        EXPECT_FALSE(form["ckbHidden"].Checked());
        EXPECT_TRUE(form.press_access_key('A'));
        EXPECT_EQ(focus(), "optAll");
        // Pages are turned from anywhere, and round.
        for (const auto& [key, page] : {std::pair(Key::NextPage, 0), {Key::PreviousPage, 1}, {Key::PreviousPage, 0}}) {
            form.go_to(form["txtName"]);
            EXPECT_TRUE(form.press(key));
            EXPECT_EQ(form["mpaMore"].ListIndex(), page);
            EXPECT_EQ(focus(), "mpaMore");
        }
        form.go_to(form["optAll"]);
        // A control that goes away takes the focus with it no further than to the first.
        form["optAll"].Enabled(false);
        EXPECT_EQ(focus(), "txtName");
        form.press(Key::Escape);
        EXPECT_FALSE(form.Visible());
    });
    EXPECT_EQ(form.pressed(), &form["btnCancel"]);
}

TEST_F(FormTest, AClosedFormDoesNothing) {
    work([&] {
        form.Unload();
        form.happened();
        form.click(form["ckbBold"]);
        form.press(Key::Tab);
        form.press_access_key('B');
        form.close();
    });
    EXPECT_THAT(form.happened(), ElementsAre("Terminate"));
    EXPECT_FALSE(form["ckbBold"].Checked());
    EXPECT_THROW(static_cast<void>(form["txtNome"]), std::out_of_range);
}

TEST_F(FormTest, WhatAHandlerThrowsComesOutAndTheFormIsClosed) {
    form.on("ckbBold", Event::Click, [](EventCall&) { throw std::runtime_error("no paper"); });
    presenter.work_next([&](Form&) { form.click(form["ckbBold"]); });
    EXPECT_THROW(form.Show(presenter), std::runtime_error);
    EXPECT_FALSE(form.Visible());
}

TEST(ScriptedForms, AreConfirmedOrCancelledByPolicy) {
    for (const auto policy : {AnswerPolicy::Ok, AnswerPolicy::Cancel}) {
        for (const bool accepts : {true, false}) {
            ScriptedPresenter presenter(policy);
            SampleForm form;
            form.accepts = accepts;
            form.Show(presenter);
            EXPECT_EQ(form.pressed(), &form[policy == AnswerPolicy::Ok && accepts ? "btnOK" : "btnCancel"]);
        }
    }
}

TEST(FilledForms, TakeValuesAsAPersonWouldGiveThem) {
    const struct {
        const char* control;
        const char* value;
        const char* problem;  // empty: it is taken
    } cases[] = {
        {"optSome", "True", ""},
        {"OPTSOME", "False", "another choice has to be made instead"},
        {"ckbBold", "yes", ""},
        {"ckbBold", "perhaps", "is neither True nor False"},
        {"txtName", "Cash = flow", ""},
        {"cmbColor", "re", ""},
        {"cmbColor", "gr", "is none of Red, Green, Grey"},
        {"lstColors", "green", ""},
        {"spnRows", "7", ""},
        {"spnRows", "10", "is no whole number from 0 to 9"},
        {"mpaMore", "Expert", ""},
        {"ckbLocked", "True", "the control cannot be seen now"},
        {"btnOK", "True", "a button takes nothing but 'click'"},
        {"btnOK", "click", ""},
        {"ckbCold", "True", "the dialog has no such control"},
    };
    for (const auto& one : cases) {
        ScriptedPresenter presenter;
        SampleForm form;
        form["optSome"].Checked(std::string(one.control) == "OPTSOME");
        if (std::string(one.control) == "ckbLocked") form["mpaMore"].ListIndex(1);
        presenter.fill_in({"FSAMPLE", one.control, one.value});
        presenter.fill_in({"fOther", "ckbBold", "True"});
        std::string problem;
        try {
            form.Show(presenter);
        } catch (const FormFillError& error) {
            problem = error.what();
        }
        const std::string wanted =
            *one.problem ? "FSAMPLE." + std::string(one.control) + "=" + one.value + ": " + one.problem : "";
        EXPECT_EQ(problem, wanted);
        ASSERT_EQ(presenter.unused_fills().size(), 1U);
        EXPECT_EQ(presenter.unused_fills()[0].form, "fOther");
    }
    SampleForm form;
    ScriptedPresenter presenter;
    for (const auto& one : cases) {
        if (!*one.problem) presenter.fill_in({"fSample", one.control, one.value});
    }
    std::string chosen;
    presenter.listen_to_forms([&](const Form& shown) { chosen = chosen_text(shown); });
    form.Show(presenter);
    EXPECT_EQ(chosen, "Name: Cash = flow; Some rows; Rows: 7; Bold; cmbColor: Red; Look: Green; mpaMore: Expert");
}

TEST(ConsoleForms, AreWrittenAndWorkedLineByLine) {
    std::istringstream input("4\n5=7\n6\n1=Cash flow\n6=maybe\n12\n5\nperhaps\n7=Gr\n\n");
    std::ostringstream output;
    ConsolePresenter presenter(input, output);
    SampleForm form;
    form["optAll"].Checked(true);
    form["ckbHidden"].Checked(true);
    form.Show(presenter);
    EXPECT_EQ(form.pressed(), &form["btnOK"]) << "a plain Enter";
    EXPECT_EQ(output.str().substr(0, output.str().find("? ") + 2),
              "Sample\n"
              "   1 Name: \n"
              "     Copy to:\n"
              "   2   (x) All rows\n"
              "   3   ( ) Some rows\n"
              "   4   ( ) No rows\n"
              "   5   Rows: \n"
              "   6 [ ] Bold\n"
              "   7 cmbColor: \n"
              "          one of Red, Green, Grey\n"
              "   8 Look: \n"
              "       #1   Red\n"
              "       #2   Green\n"
              "       #3   Grey\n"
              "   9 mpaMore: General\n"
              "          one of General, Expert\n"
              "  10   [ ] Locked\n"
              "  OK (Enter) / Cancel, or NUMBER, NUMBER=VALUE? ");
    for (const char* line :
         {"  '6=maybe' is neither True nor False.\n", "  '12' is neither a button nor the number of a choice.\n",
          "  '5' needs a value, as in 5=VALUE.\n", "  'perhaps' is neither a button nor the number of a choice.\n",
          "  '7=Gr' is none of Red, Green, Grey.\n"}) {
        EXPECT_THAT(output.str(), HasSubstr(line));
    }
    EXPECT_EQ(chosen_text(form), "Name: Cash flow; No rows; Rows: 7; Bold; cmbColor: ; Look: ; mpaMore: General");
    // At the end of the input nobody agrees to anything.
    SampleForm unanswered;
    std::istringstream nothing("6\n");
    ConsolePresenter alone(nothing, output);
    unanswered.Show(alone);
    EXPECT_EQ(unanswered.pressed(), &unanswered["btnCancel"]);
}

// A list with columns above a text that is only read.
struct ListForm : Form {
    static constexpr auto columns = std::to_array<ListColumn>({{"Cells", 60}, {"Formula", 90}});
    static constexpr auto rows = std::to_array<ControlDesign>({
        {.name = "lstCells", .kind = Kind::List, .stretch = Stretch::Both, .columns = columns},
        {.name = "txtFormula", .kind = Kind::Text, .stretch = Stretch::Across, .multi_line = true, .locked = true},
        {.name = "btnOK", .kind = Kind::Push, .caption = "OK", .role = Role::Default},
    });
    static constexpr FormDesign design_of_it{.name = "fList", .caption = "List", .controls = rows, .sizable = true};
    ListForm() : Form(design_of_it) {
        std::vector<std::string> lines{"A1\t=B1", "A10\t=B10*2", "Rates!A1"};
        for (int i = 4; i <= 30; ++i) lines.push_back("C" + std::to_string(i) + "\t=1");
        (*this)["lstCells"].List(std::move(lines));
        on("btnOK", Event::Click, [this](EventCall&) { Unload(); });
    }
};

TEST(ListForms, TakeItemsByTheFirstColumnOrByPlace) {
    const struct {
        const char* value;
        std::int32_t index;
        const char* problem;
    } cases[] = {
        {"a1", 0, ""},
        {"A10", 1, ""},
        {"rates", 2, ""},
        {"#30", 29, ""},
        {"D3", -1, "none of A1, A10, Rates!A1, C4"},
        {"#31", -1, "and 10 more"},
        {"#0", -1, "none of"},
        {"#x", -1, "none of"},
    };
    for (const auto& [value, index, problem] : cases) {
        ListForm form;
        ScriptedPresenter presenter;
        presenter.work_next([&, value = value, problem = problem](Form& shown) {
            EXPECT_THAT(enter_value(shown, shown["lstCells"], value), HasSubstr(problem)) << value;
        });
        form.Show(presenter);
        EXPECT_EQ(form["lstCells"].ListIndex(), index) << value;
        if (index == 1) {
            EXPECT_EQ(form["lstCells"].Value(), automation::Value("A10"));
            EXPECT_EQ(form["lstCells"].item(1, 1), "=B10*2");
        }
    }
}

TEST(ListForms, AreWrittenAroundWhatIsChosenWithTheMarkInTheText) {
    ListForm form;
    form["lstCells"].ListIndex(20);
    form["txtFormula"].Text("=\"\u00E9\U0001F4C8\"\n+Rates!A1*2");
    form["txtFormula"].mark(8, 8);
    std::istringstream input("2=other\n1=#2\n\n");
    std::ostringstream output;
    ConsolePresenter presenter(input, output);
    form.Show(presenter);
    EXPECT_THAT(output.str(), HasSubstr("          ... 10 before\n      #11   C11  =1\n"));
    EXPECT_THAT(output.str(), HasSubstr("      #21 > C21  =1\n"));
    EXPECT_THAT(output.str(), HasSubstr("txtFormula: =\"\u00E9\U0001F4C8\" +\u00ABRates!A1\u00BB*2\n"));
    EXPECT_THAT(output.str(), HasSubstr("'2=other' the text can only be read."));
    EXPECT_THAT(output.str(), HasSubstr("       #2 > A10  =B10*2\n"));
    EXPECT_THAT(output.str(), HasSubstr("          ... 10 more\n"));
    EXPECT_EQ(form["lstCells"].ListIndex(), 1);
}

TEST(SampleForms, ShowWhatTheyLookLikeAndAreNotWorked) {
    static constexpr auto controls = std::to_array<ControlDesign>({
        {.name = "ckbSize", .kind = Kind::Check, .caption = "Size"},
        {.name = "txtSize", .kind = Kind::Text, .place = Place::Column},
        {.name = "smpCell", .kind = Kind::Sample, .caption = "Preview"},
    });
    static constexpr FormDesign design{.name = "fCell", .caption = "Cell", .controls = controls};
    Form form(design);
    ScriptedPresenter presenter;
    presenter.work_next([](Form& shown) {
        shown.press(Key::Tab);
        shown.press(Key::Tab);
        EXPECT_EQ(shown.ActiveControl(), &shown["ckbSize"]);
        EXPECT_EQ(enter_value(shown, shown["smpCell"], "7"), "the control has no value");
    });
    Looks looks{.text = "7", .font = "Verdana", .size = 8.5, .struck = true, .fill = 0x99FFFF, .turn = -30};
    looks.edges = {Edge{Dash::Double}, Edge{Dash::Dots, 1.5, 0xFF}, Edge{Dash::Double}, Edge{}};
    form["smpCell"].Looks(looks);
    form.Show(presenter);
    std::vector<std::string> lines;
    for (const FormLine& line : form_lines(form)) lines.push_back(line.text);
    EXPECT_THAT(
        lines, testing::ElementsAre("[ ] Size", "Size: ",
                                    "Preview: 7 in Verdana 8.5, struck through on #FFFF99, turned by -30 degrees, "
                                    "double 0.75 pt line at the left, at the right, dotted 1.5 pt #FF0000 line above"));
}

}  // namespace
}  // namespace kestrune::forms
