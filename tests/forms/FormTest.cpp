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
        {"ckbLocked", "True", "the control is disabled"},
        {"btnOK", "True", "the control has no value"},
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
              "   8 Look: \n"
              "   9 mpaMore: General\n"
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

}  // namespace
}  // namespace kestrune::forms
