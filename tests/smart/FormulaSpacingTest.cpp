#include "smart/spacing/FormulaSpacing.h"

#include "forms/Form.h"
#include "settings/cUserSettings.h"
#include "styles/AddInInHost.h"

namespace kestrune::smart {
namespace {

using automation::Value;
using forms::Form;
using forms::Key;

TEST(FormulaSpacing, ShiftsByTheRuleWithHalvesToTheEvenNeighbour) {
    const struct {
        std::int32_t group_size, adjustment;
        std::vector<std::int32_t> shifts;  // of the lines from 1 on
    } cases[] = {
        {1, 4, {0, 3, 6, 9, 12}},
        {4, 1, {0, -1, -2, -2, -3, -4, -4, -5, -6}},  // 0.75, 1.5, 2.25, 3, 3.75, 4.5, 5.25, 6
        {2, 2, {0, 0, 0, 0}},
        {2, 1, {0, 0, -1, -2, -2, -2, -3}},  // 0.5, 1, 1.5, 2, 2.5, 3
        {1, -1, {0, -2, -4}},
    };
    for (const auto& one : cases) {
        for (std::size_t i = 0; i < one.shifts.size(); ++i) {
            EXPECT_EQ(spacing_shift(static_cast<std::int32_t>(i) + 1, one.group_size, one.adjustment), one.shifts[i])
                << one.group_size << " " << one.adjustment << " line " << i + 1;
        }
    }
}

struct FormulaSpacingTest : styles::AddInInHost {
    FormulaSpacingTest() {
        stop();
        core::register_add_in(state);
        start();
    }
    ~FormulaSpacingTest() override { stop(); }
    // Has the command run without its dialog.
    void space(std::string_view selected, const char* command, std::int32_t group_size, std::int32_t adjustment) const {
        auto& settings = state->settings();
        settings.SmartFmlaRowSpacing = {group_size, adjustment, false};
        settings.SmartFmlaColSpacing = {group_size, adjustment, false};
        press(selected, command);
    }
    [[nodiscard]] std::string formulas(std::string_view address) const {
        std::string text;
        const Value block = cells(address).Formula();
        for (const Value& one : block.array()->elements()) text += automation::to_text(one) + "|";
        return text;
    }

    std::shared_ptr<core::SharedState> state = std::make_shared<core::SharedState>(presenter, trace);
};

TEST_F(FormulaSpacingTest, FormulasAdvanceAtTheirOwnPace) {
    workbook->add_sheet("Data");
    cells("B2").Formula("=Data!C10+$D$4+D$4");
    cells("D2").Formula("=D20");
    cells("C3").Formula("=1+1");
    space("B2:D5", "4", 1, 4);
    EXPECT_EQ(formulas("B2:B5"), "=Data!C10+$D$4+D$4|=Data!C14+$D$4+D$4|=Data!C18+$D$4+D$4|=Data!C22+$D$4+D$4|");
    EXPECT_EQ(formulas("C2:C5"), "|=1+1|||") << "a column without a first formula stays";
    EXPECT_EQ(formulas("D2:D5"), "=D20|=D24|=D28|=D32|");
    // Quarters from years, to the right; what stands in the first group stays.
    cells("F2:F3").Formula("=B30");
    cells("G2").Formula("kept");
    space("F2:N3", "3", 4, 1);
    EXPECT_EQ(formulas("F2:N2"), "=B30|kept|||=C30|=C30|=D30|=D30|=D30|");
    EXPECT_EQ(formulas("F3:N3"), "=B31||||=C31|=C31|=D31|=D31|=D31|");
    // A reference pushed off the sheet.
    cells("P50").Formula("=P1");
    space("P50:P53", "4", 1, -1);
    EXPECT_EQ(formulas("P50:P53"), "=P1|=#REF!|=#REF!|=#REF!|");
    // Two cells of one shift, of which only the second reaches beyond the last row.
    cells("B1048570").Formula("=C1048575");
    space("B1048570:B1048576", "4", 4, 1);
    EXPECT_EQ(formulas("B1048574:B1048576"), "=C1048576|=C1048576|=#REF!|");
    cells("Q10").Formula("=Q1");
    space("Q10:Q13,R10:R11", "4", 1, 1);
    EXPECT_EQ(formulas("Q10:Q13"), "=Q1|=Q2|=Q3|=Q4|");
    space("Q10", "4", 1, 4);
    EXPECT_EQ(formulas("Q10:Q11"), "=Q1|=Q2|") << "one row writes nothing";
    automation::call(*global, "BRUndo");
    EXPECT_EQ(formulas("Q10:Q13"), "=Q1||||");
    EXPECT_TRUE(presenter.messages().empty());
    space("Q10:Q13", "4", 0, 1);
    EXPECT_EQ(presenter.messages().size(), 1U);
    EXPECT_EQ(formulas("Q10:Q13"), "=Q1||||");
}

TEST_F(FormulaSpacingTest, CellsThatRefuseCostNobodyElseTheirFormula) {
    cells("B2:C2").Formula("=A2");
    cells("B5").Locked(false);
    cells("B7:B9").Locked(false);
    workbook->sheet("Sheet1")->protection().on = true;
    space("B2:C9", "4", 1, 2);
    workbook->sheet("Sheet1")->protection().on = false;
    EXPECT_EQ(formulas("B2:B9"), "=A2|||=A8||=A12|=A14|=A16|");
    EXPECT_EQ(formulas("C2:C9"), "=B2||||||||") << "as it was";
}

TEST_F(FormulaSpacingTest, TheDialogTakesWholeNumbers) {
    cells("B2").Formula("=A2");
    for (const bool rows : {true, false}) {
        presenter.work_next([&](Form& form) {
            EXPECT_EQ(form.Caption(), "BR Kestrune -- Smart Formula Spacing");
            EXPECT_EQ(form["lblUnit"].Caption(), rows ? "rows" : "columns");
            EXPECT_EQ(form["lblAdjustment"].Caption(), rows ? "Row adjustment" : "Column adjustment");
            EXPECT_EQ(form["ckbShow"].Caption(), rows ? "Show form next time you run 'Smart Formula Row Spacing'"
                                                      : "Show form next time you run 'Smart Formula Column Spacing'");
            EXPECT_EQ(form["txtFmla"].Text() + form["txtReference"].Text(), "21");
            std::size_t messages = presenter.messages().size();
            for (const auto& [box, text] : {std::pair{"txtFmla", "two"},
                                            {"txtFmla", "0"},
                                            {"txtFmla", "2e6"},
                                            {"txtReference", ""},
                                            {"txtReference", "-1048576"}}) {
                form.type(form["txtFmla"], "3");
                form.type(form["txtReference"], "2");
                form.type(form[box], text);
                form.press(Key::Enter);
                EXPECT_TRUE(form.Visible()) << box << " " << text;
                EXPECT_EQ(form.ActiveControl(), &form[box]) << text;
                EXPECT_EQ(presenter.messages().size(), ++messages);
                EXPECT_EQ(presenter.messages().back().caption, "Brannoch Kestrune");
            }
            form.type(form["txtFmla"], " 1 ");
            form.type(form["txtReference"], "3");
            form.press_access_key('S');
            form.press(Key::Enter);
        });
        press("B2:C3", rows ? "4" : "3");
    }
    EXPECT_EQ(formulas("B2:C3"), "=A2|=D2|=A5|=D5|");
    EXPECT_EQ(state->settings().SmartFmlaRowSpacing, (settings::SmartFmlaRowSpacingOptions{1, 3, false}));
    EXPECT_EQ(state->settings().SmartFmlaColSpacing, (settings::SmartFmlaColSpacingOptions{1, 3, false}));
    state->settings().SmartFmlaRowSpacing.Show = true;
    presenter.work_next([&](Form& form) {
        form.type(form["txtFmla"], "5");
        form.press(Key::Escape);
    });
    cells("B3").Formula("");
    press("B2:B3", "4");
    EXPECT_EQ(formulas("B2:B3"), "=A2||");
    EXPECT_EQ(state->settings().SmartFmlaRowSpacing.FmlaRows, 1);
}

TEST_F(FormulaSpacingTest, ManyCellsCostFewCalls) {
    cells("B1:F1").Formula("=Z1");
    state->settings().SmartFmlaRowSpacing = {2, 1, false};
    cells("B1:F2000").Select();
    const std::int64_t before = session.calls();
    automation::call(*global, "RunMacro", {"4"});
    EXPECT_LT(session.calls() - before, 500);
    EXPECT_EQ(cells("F1999").Formula(), Value("=AD1000"));
}

}  // namespace
}  // namespace kestrune::smart
