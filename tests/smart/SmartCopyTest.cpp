#include <random>

#include "brxllib/ContentKind.h"
#include "core/bridges/SharedState.h"
#include "core/register_add_in.h"
#include "forms/Form.h"
#include "settings/cUserSettings.h"
#include "smart/copy/Condition.h"
#include "smart/copy/OffsetAdjustment.h"
#include "smart/copy/Scan.h"
#include "styles/AddInInHost.h"

namespace kestrune::smart {
namespace {

using automation::Value;
using forms::Form;
using forms::Key;
using settings::SmartCopyOptions;
using testing::ElementsAre;
using testing::IsEmpty;

struct SmartCopyTest : styles::AddInInHost {
    SmartCopyTest() {
        // The state is the add-in's own: this one is registered in place of it to get at the settings.
        stop();
        core::register_add_in(state);
        start();
        options() = {};
        options().Show = false;
        options(false) = options();
    }
    ~SmartCopyTest() override { stop(); }
    [[nodiscard]] SmartCopyOptions& options(bool down = true) const {
        return down ? state->settings().SmartCopyDown : state->settings().SmartCopyRight;
    }
    void fill(std::initializer_list<std::pair<const char*, const char*>> entries) const {
        for (const auto& [address, typed] : entries) cells(address).Formula(typed);
    }
    [[nodiscard]] std::string formula(std::string_view address) const {
        return automation::to_text(cells(address).Formula());
    }
    // The formulas of cells from the top down, or from left to right.
    [[nodiscard]] std::string formulas(std::string_view address) const {
        std::string text;
        const Value block = cells(address).Formula();
        for (const Value& one : block.array()->elements()) text += automation::to_text(one) + "|";
        return text;
    }
    [[nodiscard]] std::string state_of_excel() const {
        return std::to_string(application.Calculation()) + (application.ScreenUpdating() ? " drawn" : " not drawn");
    }
    [[nodiscard]] std::vector<std::string> said() const {
        std::vector<std::string> lines;
        for (const forms::Message& message : presenter.messages()) {
            EXPECT_EQ(message.buttons, forms::vbOKOnly);
            lines.push_back(message.caption + ": " + message.text.substr(0, 24));
        }
        return lines;
    }

    std::shared_ptr<core::SharedState> state = std::make_shared<core::SharedState>(presenter, trace);
};

TEST_F(SmartCopyTest, CopiesToLabelledLinesOnly) {
    fill({{"A5", "Revenue"}, {"A6", "Cost"}, {"A8", "Tax"}, {"A11", "Net"}, {"C5", "=B5*2+R$1"}, {"D5", "7"}});
    choose_scan(options(), ScanChoice::Intervals);
    press("C5:D5", "1");
    EXPECT_EQ(formulas("C5:C12"), "=B5*2+R$1|=B6*2+R$1||=B8*2+R$1|||||");
    EXPECT_EQ(formulas("D5:D12"), "7|7||7|||||");
    fill({{"A8", ""},
          {"B3", "2024"},
          {"C3", "2025"},
          {"E3", "2026"},
          {"B4", "a"},
          {"C4", "b"},
          {"E4", "c"},
          {"B9", "=A9+1"}});
    choose_scan(options(false), ScanChoice::All);
    press("B9", "0");
    EXPECT_EQ(formulas("B9:F9"), "=A9+1|=B9+1||=D9+1||") << "a single cell is a column as well";
    EXPECT_THAT(said(), IsEmpty());
}

TEST_F(SmartCopyTest, FormulasReachOverWhatWasSkipped) {
    fill({{"A2", "a"}, {"A3", "b"}, {"A5", "c"}, {"A6", "d"}, {"A7", "e"}, {"B2", "=B1+A1+B3"}, {"B6", "note"}});
    options().Adjust = true;
    press("B2", "1");
    EXPECT_EQ(formulas("B2:B7"), "=B1+A1+B3|=B2+A2+B4||=B3+A3+B6|note|=B5+A5+B8|")
        << "b was written last before c, and c before e, since d holds a text";
}

TEST_F(SmartCopyTest, TellsWhatItCannotDo) {
    fill({{"A5", "Revenue"}, {"C5", "1"}});
    const std::string before = state_of_excel();
    const char* product = "Brannoch Kestrune: ";
    const struct {
        const char* selected;
        const char* command;
        std::string said;  // the caption and the beginning of the text
    } cases[] = {
        {"C5:D6", "1", product + std::string("Smart Copy Down copies t")},
        {"C5,E5", "1", product + std::string("Smart Copy Down copies t")},
        {"C5:D6", "0", product + std::string("Smart Copy Right copies ")},
        {"D5:F5", "1", product + std::string("The selected cells are e")},
        {"J50:J60", "0", product + std::string("The selected cells are e")},
        {"A5", "1", "Brannoch Kestrune -- Smart Copy Down: No row label was found t"},
        {"5:5", "1", "Brannoch Kestrune -- Smart Copy Down: No row label was found t"},
        {"C5:C9", "0", product + std::string("No column label was foun")},
        {"C:C", "0", product + std::string("No column label was foun")},
    };
    std::vector<std::string> all;
    for (const auto& one : cases) {
        press(one.selected, one.command);
        all.push_back(one.said);
        EXPECT_EQ(said(), all) << one.selected;
    }
    // Nothing to copy onto, which is nobody's fault.
    press("C5", "1");
    fill({{"A7", "Tax"}});
    choose_scan(options(), ScanChoice::Contiguous);
    press("C5", "1");
    EXPECT_EQ(said(), all);
    options().IntervalValues = -1;
    press("C5", "1");
    all.push_back(product + std::string("Please enter an interval"));
    EXPECT_EQ(said(), all);
    EXPECT_EQ(formulas("B5:C9"), "|1|||||||||");
    EXPECT_EQ(state_of_excel(), before);
}

TEST_F(SmartCopyTest, CalculatesAndDrawsAgainAfterwards) {
    fill({{"A5", "a"}, {"A6", "b"}, {"C5", "1"}});
    for (const std::int32_t mode : {excel::xlCalculationAutomatic, excel::xlCalculationManual, 2}) {
        application.Calculation(mode);
        press("C5", "1");
        EXPECT_EQ(state_of_excel(), std::to_string(mode) + " drawn");
    }
    // Also when every cell refuses.
    workbook->sheet("Sheet1")->protection().on = true;
    press("C5", "1");
    EXPECT_EQ(state_of_excel(), "2 drawn");
}

TEST_F(SmartCopyTest, CopiesFormats) {
    fill({{"A5", "a"}, {"A6", "b"}, {"A8", "c"}, {"C5", "1"}, {"D5", "=C5"}, {"E5", "'007"}});
    const excel::Range from = cells("C5:D5");
    from.NumberFormat("0.0%");
    cells("C5").Font().Bold(true);
    cells("D5").Font().Color(255);
    from.Font().Size(14);
    from.HorizontalAlignment(excel::xlRight);
    cells("C6").NumberFormat("@");
    cells("C5").Interior().Color(65535);
    choose_scan(options(), ScanChoice::All);
    press("C5:E5", "1");
    const auto look = [&](const char* address) {
        const excel::Range cell = cells(address);
        std::string text = automation::to_text(cell.Formula());
        for (const Value& value : {cell.NumberFormat(), cell.Font().Bold(), cell.Font().Color(), cell.Font().Size(),
                                   cell.HorizontalAlignment(), cell.Interior().Color(), cell.PrefixCharacter()}) {
            text += " " + automation::to_text(value);
        }
        return text;
    };
    EXPECT_EQ(look("C6"), "1 0.0% True 0 14 -4152 16777215 ");
    EXPECT_EQ(cells("C6").Value(), Value(1.0)) << "not a text, as the cell took them before";
    EXPECT_EQ(look("D8"), "=C8 0.0% False 255 14 -4152 16777215 ");
    EXPECT_EQ(look("C7"), " General False 0 11 1 16777215 ") << "no label, no copy";
    EXPECT_EQ(cells("E8").Value(), Value("007"));
    options().Format = false;
    cells("C6:C8").ClearFormats();
    press("C5:D5", "1");
    EXPECT_EQ(cells("C6").NumberFormat(), Value("General"));
}

TEST_F(SmartCopyTest, ADialogTakesAndKeepsTheOptions) {
    fill({{"A5", "a"}, {"A6", "b"}, {"C5", "1"}, {"C4", "x"}});
    for (const bool down : {true, false}) {
        const std::string title = down ? "Smart Copy Down" : "Smart Copy Right";
        const std::string way = down ? "down" : "right";
        const std::string line = down ? "row" : "column";
        SmartCopyOptions& kept = options(down);
        kept.Show = true;
        presenter.work_next([&](Form& form) {
            EXPECT_EQ(form.Caption(), "BR Kestrune -- " + title);
            EXPECT_EQ(form["fraScan"].Caption(), "Copy " + way + " across from:");
            const std::pair<const char*, std::string> captions[] = {
                {"optContiguous", "Contiguous " + line + " labels"},
                {"optIntervals", (down ? "Row" : "Column") + (" labels separated by no more than X " + line) + "s"},
                {"optAll", "ALL " + line + " labels"},
                {"optAllIntervals", "All " + line + " labels, but skipping regular intervals of X"},
                {"ckbFormulas", "Skip cells with formulas when copying " + way},
                {"ckbValues",
                 "Skip cells with values (formulas or inputs) satisfying the condition at right when copying " + way},
                {"ckbText", "Skip cells with text when copying " + way},
                {"ckbFormat", "Copy font properties, number format, and horizontal alignment when copying " + way},
                {"ckbAdjust", "Adjust formulas for skipped " + line + "s"},
                {"ckbShow", "Show next time you run '" + title + "'"},
            };
            for (const auto& [control, caption] : captions) EXPECT_EQ(form[control].Caption(), caption);
            const std::string to = "Copy selection " + way + " across from ";
            const std::pair<const char*, std::string> tips[] = {
                {"optContiguous", to + "labels that are not separated by empty " + line + "s"},
                {"optIntervals", to + "labels that are not separated by more than X empty " + line +
                                     "s from the one immediately at left"},
                {"optAll", to + "all " + line + " labels"},
                {"optAllIntervals",
                 to + "all " + line + " labels -- skipping X " + line + "s every time as far as possible"},
                {"ckbAdjust", "Adjust formulas for skipped " + line + "s when copying formulas " + way},
                {"ckbShow", "Uncheck this box if you prefer not to see this form every time you run '" + title + "'"},
            };
            for (const auto& [control, tip] : tips) EXPECT_EQ(form[control].ControlTipText(), tip);
            // As the settings have it.
            EXPECT_TRUE(form["optIntervals"].Checked());
            EXPECT_EQ(form.ActiveControl(), &form["optIntervals"]);
            EXPECT_EQ(form["txtInterval"].Text(), "1");
            EXPECT_EQ(form["spnValue"].Number(), 1);
            EXPECT_EQ(form["cmbOperator"].Text(), "EQUAL");
            EXPECT_FALSE(form["cmbOperator"].Enabled());
            EXPECT_TRUE(form["ckbText"].Checked());
            // The box and its arrows stay in step.
            form.spin(form["spnValue"], true);
            EXPECT_EQ(form["txtInterval"].Text(), "2");
            form.type(form["txtInterval"], " 7 ");
            EXPECT_EQ(form["spnValue"].Number(), 7);
            form.press(Key::Down);
            EXPECT_EQ(form["txtInterval"].Text(), "6");
            // Not a number, then one that no sheet has room for.
            for (const char* text : {"six", "-1", "1048576", ""}) {
                form.type(form["txtInterval"], text);
                form.press(Key::Enter);
                EXPECT_TRUE(form.Visible()) << text;
                EXPECT_EQ(form.ActiveControl(), &form["txtInterval"]) << text;
                EXPECT_EQ(presenter.messages().back().caption, "Brannoch Kestrune");
            }
            EXPECT_EQ(presenter.messages().size(), down ? 4U : 8U);
            EXPECT_EQ(kept.IntervalValues, 1) << "nothing is kept before it is right";
            form.type(form["txtInterval"], " 2.5 ");
            form.press_access_key('k');
            form.press_access_key('v');
            form.choose(form["cmbOperator"], 4);
            form.type(form["txtValue"], "100");
            form.press_access_key('S');
            form.press(Key::Enter);
        });
        press("C5", down ? "1" : "0");
        SmartCopyOptions wanted{.Operator = "GREATER THAN OR EQUAL", .Value = "100"};
        choose_scan(wanted, ScanChoice::AllIntervals);
        wanted.IntervalValues = 2;
        wanted.Values = true;
        wanted.Show = false;
        EXPECT_EQ(kept, wanted);
    }
    // Cancelled: nothing is kept, nothing done, nothing said.
    options() = {};
    const std::size_t messages = presenter.messages().size();
    presenter.work_next([](Form& form) {
        form.click(form["optAll"]);
        form.press(Key::Escape);
    });
    press("C5", "1");
    EXPECT_EQ(options(), SmartCopyOptions{});
    EXPECT_EQ(formula("C6"), "");
    EXPECT_EQ(presenter.messages().size(), messages);
}

// The rule, cell by cell, as it is told.
struct Reference {
    const SmartCopyTest& test;
    const SmartCopyOptions& options;
    bool down;

    [[nodiscard]] excel::Range cell(std::int32_t line, std::int32_t place) const {
        return test.cells("A1").Cells(down ? line : place, down ? place : line);
    }
    // What each cell of a block of 24 lines and 8 places is to hold; the copied line is the third.
    [[nodiscard]] std::vector<std::string> expected(const core::diBRVBLib& library) const {
        std::vector<bool> labelled;
        for (std::int32_t line = 3; line <= 24; ++line) {
            labelled.push_back(automation::to_text(cell(line, 1).Formula()) != "");
        }
        while (!labelled.back()) labelled.pop_back();
        const auto targets = target_lines(labelled, 3, scan_choice(options), options.IntervalValues);
        std::vector<std::string> result;
        for (std::int32_t place = 1; place <= 8; ++place) {
            std::int32_t before = 3;
            for (std::int32_t line = 1; line <= 24; ++line) {
                const excel::Range target = cell(line, place);
                const bool refused = target.Locked() == Value(true) && test.workbook->sheet("Sheet1")->protection().on;
                const bool wanted = place >= 3 && place <= 7 && std::ranges::find(targets, line) != targets.end();
                if (!wanted || skipped(library, target)) {
                    result.push_back(automation::to_text(target.FormulaR1C1()));
                    continue;
                }
                std::string formula = automation::to_text(cell(3, place).FormulaR1C1());
                if (options.Adjust) {
                    formula =
                        down ? AdjustRowOffsets(before, line, formula) : AdjustColumnOffsets(before, line, formula);
                }
                before = line;
                result.push_back(refused ? automation::to_text(target.FormulaR1C1()) : formula);
            }
        }
        return result;
    }
    [[nodiscard]] bool skipped(const core::diBRVBLib& library, const excel::Range& target) const {
        if (options.Formulas && automation::to_text(target.Formula()).starts_with("=")) return true;
        const CellContent content{static_cast<std::int32_t>(brxllib::content_kinds(target).front()), target.Value()};
        if (options.Text && EvaluateCondition(read_condition(library, "NOT EQUAL", "", true), content)) return true;
        return options.Values &&
               EvaluateCondition(read_condition(library, options.Operator, options.Value, false), content);
    }
    [[nodiscard]] std::vector<std::string> found() const {
        std::vector<std::string> result;
        for (std::int32_t place = 1; place <= 8; ++place) {
            for (std::int32_t line = 1; line <= 24; ++line) {
                result.push_back(automation::to_text(cell(line, place).FormulaR1C1()));
            }
        }
        return result;
    }
};

TEST_F(SmartCopyTest, DoesInBlocksWhatTheRuleSaysOfEachCell) {
    std::mt19937 dice(20261123);
    const auto roll = [&](std::size_t sides) { return static_cast<std::size_t>(dice() % sides); };
    const char* entries[] = {"", "", "", "5", "12", "text", "TRUE", "=A1", "1/1/2024", "#N/A", "=R1"};
    const char* sources[] = {"=A1*2", "=$B$2+1", "8", "word", "", "=SUM(A1:A2)", "'01"};
    const char* values[] = {"", "12", "text", "true", "err", "1/1/2024", "6"};
    for (int round = 0; round < 60; ++round) {
        const bool down = roll(2) == 0;
        SmartCopyOptions& with = options(down);
        const Reference rule{*this, with, down};
        workbook->sheet("Sheet1")->protection().on = false;
        cells("A1:Z40").Formula("");
        cells("A1:Z40").Locked(true);
        for (std::int32_t line = 1; line <= 24; ++line) {
            if (line == 3 || roll(3) > 0) rule.cell(line, 1).Formula("label");
            for (std::int32_t place = 3; place <= 8; ++place) {
                rule.cell(line, place).Formula(line == 3 ? sources[roll(7)] : entries[roll(11)]);
                rule.cell(line, place).Locked(roll(2) == 0);
            }
        }
        rule.cell(3, 4).Formula("=B1");
        rule.cell(3, 3).Formula("9");  // a text there would be the label
        choose_scan(with, static_cast<ScanChoice>(roll(4)));
        with.IntervalValues = static_cast<std::int32_t>(roll(3));
        with.Formulas = roll(2) == 0;
        with.Values = roll(2) == 0;
        with.Text = roll(2) == 0;
        with.Operator = condition_operators[roll(6)];
        with.Value = values[roll(7)];
        with.Adjust = roll(2) == 0;
        with.Format = roll(2) == 0;
        workbook->sheet("Sheet1")->protection().on = roll(4) == 0;
        const auto before = rule.found();
        const auto expected = rule.expected(state->general());
        rule.cell(3, 3).Resize(down ? 1 : 5, down ? 5 : 1).Select();
        automation::call(*global, "RunMacro", {down ? "1" : "0"});
        ASSERT_EQ(rule.found(), expected) << "round " << round << (down ? " down" : " right");
        workbook->sheet("Sheet1")->protection().on = false;
        if (expected != before) {
            automation::call(*global, "BRUndo");
            ASSERT_EQ(rule.found(), before) << "round " << round;
        }
    }
    EXPECT_THAT(said(), IsEmpty());
}

TEST_F(SmartCopyTest, ManyCellsCostFewCalls) {
    fill({{"C1", "=B1+1"}, {"D1", "=C1"}, {"E1", "3"}, {"F1", "=SUM(B1:E1)"}, {"G1", "=F1"}});
    cells("C1:E1").NumberFormat("0.00");
    cells("F1").Font().Bold(true);
    options().Adjust = true;
    options().Formulas = true;
    const auto calls = [&] {
        cells("C1:G1").Select();
        const std::int64_t before = session.calls();
        automation::call(*global, "RunMacro", {"1"});
        return session.calls() - before;
    };
    // 10,000 cells each: all rows, then every other row.
    cells("A1:A2001").Formula("label");
    EXPECT_LT(calls(), 1000);
    EXPECT_EQ(formula("G2001"), "=F2001");
    EXPECT_EQ(cells("C2001").NumberFormat(), Value("0.00"));
    cells("A1:A4001").Formula("label");
    for (std::int32_t row = 2; row < 4001; row += 2) cells("A1").Cells(row, 1).Formula("");
    cells("C2:G4001").Formula("");
    options().Format = false;
    EXPECT_LT(calls(), 1000);
    EXPECT_EQ(formulas("F3999:F4001"), "=SUM(B3999:E3999)||=SUM(B4001:E4001)|");
}

}  // namespace
}  // namespace kestrune::smart
