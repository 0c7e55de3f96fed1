#include "forms/Form.h"
#include "forms/FormText.h"
#include "host_objects/FakeStore.h"
#include "styles/AddInInHost.h"

namespace kestrune::smart {
namespace {

using automation::Value;
using forms::Form;
using forms::Key;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// A model of three sheets, one of them hidden, in front of a file system with two workbooks.
struct SmartTraceTest : styles::AddInInHost {
    SmartTraceTest() {
        session.store = &store;
        store.saves["/data/Rates.xlsx"] = 0;
        store.saves["/data/broken.xlsx"] = 0;
        workbook->name = "Model.xlsx";
        workbook->path = "/models";
        workbook->add_sheet("Rates");
        workbook->add_sheet("Secret");
        at("Secret", "A1").Worksheet().Visible(0);
        automation::call(*book().Names().object(), "Add", {"Rate", "=Rates!$C$4"});
    }
    [[nodiscard]] excel::Workbook book(const char* name = "Model.xlsx") const {
        return application.Workbooks().Item(name);
    }
    [[nodiscard]] excel::Range at(const char* sheet, std::string_view address, const char* name = "Model.xlsx") const {
        return book(name).Worksheets().Item(sheet).Range(address);
    }
    // Where a person is and what they see, to the cell.
    [[nodiscard]] std::string where() const {
        const excel::Window window = application.ActiveWindow();
        return excel::Range(application.Selection()).Address(false, false, excel::xlA1, true) + " " +
               application.ActiveCell().Address(false, false, excel::xlA1, false) + " " +
               std::to_string(window.ScrollRow()) + "," + std::to_string(window.ScrollColumn());
    }
    // The first column of a list.
    static std::vector<std::string> listed(const Form& form, const char* list) {
        std::vector<std::string> cells;
        const auto count = static_cast<std::int32_t>(form[list].List().size());
        for (std::int32_t i = 0; i < count; ++i) cells.emplace_back(form[list].item(i, 0));
        return cells;
    }
    static std::string marked(const Form& form) {
        for (const forms::FormLine& line : forms::form_lines(form)) {
            if (line.control->Name() == "txtFormula") return line.text;
        }
        return "none";
    }
    [[nodiscard]] std::vector<std::string> said() const {
        std::vector<std::string> texts;
        for (const forms::Message& message : presenter.messages()) {
            EXPECT_EQ(message.caption, "Brannoch Kestrune");
            texts.push_back(message.text);
        }
        return texts;
    }

    host::FakeStore store;
};

const char* const to_rates = "'/data/[Rates.xlsx]First'!$B$2";

TEST_F(SmartTraceTest, ListsPrecedentsSheetBySheetAndMarksThemInTheFormula) {
    at("Rates", "C4").Value(0.0525);
    at("Rates", "C4").NumberFormat("0.00%");
    cells("B2").Formula("=Rates!B1+$C$3*Rate+SUM(A:A)+C3+Secret!A1+SUM('Rates'!B1,Sheet1:Rates!F9)");
    presenter.work_next([&](Form& form) {
        EXPECT_EQ(form.design().name, "fSmartPrecedents");
        EXPECT_EQ(form.Caption(), "BR Kestrune -- Smart Precedents") << "no window here that could be resized";
        EXPECT_EQ(form["lblCells"].Caption(), "Sheet1!B2 refers to:");
        EXPECT_THAT(listed(form, "lstCells"),
                    ElementsAre("C3", "A:A", "F9", "Rates!B1", "Rates!C4", "Rates!F9", "Secret!A1"));
        EXPECT_EQ(form["lstCells"].List()[4], "Rates!C4\tRate\t5.25%");
        EXPECT_EQ(form.ActiveControl(), &form["lstCells"]);
        EXPECT_THAT(where(), HasSubstr("Sheet1!C3 ")) << "the first is shown at once";
        EXPECT_TRUE(application.ScreenUpdating()) << "a person looks at the cells meanwhile";
        EXPECT_THAT(marked(form), StartsWith("Formula: =Rates!B1+\u00AB$C$3\u00BB*Rate"));
        form.press(Key::Down);
        EXPECT_THAT(where(), HasSubstr("Sheet1!A:A "));
        form.choose(form["lstCells"], 4);
        EXPECT_THAT(where(), HasSubstr("Rates!C4 "));
        EXPECT_THAT(marked(form), HasSubstr("*\u00ABRate\u00BB+"));
        EXPECT_EQ(form["lblNote"].Caption(), "Rate stands for Rates!C4.");
        form.choose(form["lstCells"], 6);
        EXPECT_EQ(form["lblNote"].Caption(), "Secret!A1 cannot be shown: the sheet is hidden or not there.");
        form.press(Key::Enter);
        EXPECT_TRUE(form.Visible()) << "there is nowhere to go";
        form.press(Key::Up);
        form.press(Key::Enter);
    });
    press("B2", "7");
    EXPECT_THAT(where(), HasSubstr("Rates!F9 "));
    at("Sheet1", "A1").Worksheet().Activate();
    EXPECT_THAT(where(), HasSubstr("Sheet1!B2 ")) << "the sheets on the way are as they were";
    EXPECT_THAT(said(), IsEmpty());
}

TEST_F(SmartTraceTest, EscapeLeadsBackToWhereThePersonWas) {
    at("Rates", "A1").Formula("=Sheet1!B2");
    for (const char* cell : {"C9", "B1", "Z300"}) cells(cell).Formula("=B2");
    at("Rates", "D5:E6").Worksheet().Activate();
    at("Rates", "D5:E6").Select();
    application.ActiveWindow().ScrollRow(3);
    cells("A1").Worksheet().Activate();
    cells("B2:C3,E5").Select();
    cells("B2").Activate();
    application.ActiveWindow().ScrollRow(2);
    application.ActiveWindow().ScrollColumn(2);
    const std::string before = where();
    for (const auto leave : {+[](Form& form) { form.press(Key::Escape); }, +[](Form& form) { form.close(); }}) {
        presenter.work_next([&](Form& form) {
            EXPECT_THAT(listed(form, "lstBox"), ElementsAre("B1", "C9", "Z300", "Rates!A1"));
            form.choose(form["lstBox"], 3);
            EXPECT_THAT(where(), HasSubstr("Rates!A1 "));
            form.press(Key::Up);
            EXPECT_THAT(where(), HasSubstr("Sheet1!Z300 "));
            leave(form);
        });
        automation::call(*global, "RunMacro", {"8"});
        EXPECT_EQ(where(), before);
    }
    at("Rates", "A1").Worksheet().Activate();
    EXPECT_THAT(where(), HasSubstr("Rates!D5:E6 D5 3,")) << "where the person was on the other sheet";
}

TEST_F(SmartTraceTest, DividesDependentsBySheet) {
    cells("D1:D3").Formula("=$B$2");
    at("Rates", "A1:A2").Formula("=Rate*Sheet1!B$2:B$3");
    application.Workbooks().Open("/data/Rates.xlsx");
    at("Second", "A1", "Rates.xlsx").Formula("=[Model.xlsx]Sheet1!$B$2");
    book().Activate();
    presenter.work_next([&](Form& form) {
        EXPECT_EQ(form["lblCells"].Caption(), "Formulas that refer to Sheet1!B2:");
        EXPECT_EQ(form.ActiveControl(), &form["lstBox"]);
        EXPECT_THAT(form["cmbBox"].List(),
                    ElementsAre("All sheets (6)", "Sheet1 (3)", "Rates (2)", "[Rates.xlsx]Second (1)"));
        EXPECT_EQ(form["lstBox"].List().size(), 6U);
        form.choose(form["cmbBox"], 2);
        EXPECT_THAT(form["lstBox"].List(),
                    ElementsAre("Rates!A1\t=Rate*Sheet1!B$2:B$3", "Rates!A2\t=Rate*Sheet1!B$2:B$3"));
        EXPECT_THAT(where(), HasSubstr("Rates!A1 ")) << "its first";
        EXPECT_EQ(marked(form), "Formula: =Rate*\u00ABSheet1!B$2:B$3\u00BB");
        form.choose(form["cmbBox"], 3);
        EXPECT_THAT(where(), HasSubstr("[Rates.xlsx]Second!A1 "));
        form.double_click(form["lstBox"]);
    });
    press("B2", "8");
    EXPECT_THAT(where(), HasSubstr("[Rates.xlsx]Second!A1 "));
    EXPECT_TRUE(presenter.forms() == std::vector<std::string>{"BR Kestrune -- Smart Dependents"});
}

TEST_F(SmartTraceTest, ListsThousandsAtOnce) {
    cells("D1:D20000").Formula("=$B$2*ROW()");
    cells("B2").Select();
    const std::int64_t before = session.calls();
    presenter.work_next([&](Form& form) {
        EXPECT_EQ(form["lstBox"].List().size(), 20000U);
        form.choose(form["lstBox"], 19999);
        EXPECT_THAT(where(), HasSubstr("Sheet1!D20000 "));
        form.press(Key::Escape);
    });
    press("B2", "8");
    EXPECT_LT(session.calls() - before, 150);
}

TEST_F(SmartTraceTest, SaysWhenThereIsNothingAndStaysWhereItIs) {
    cells("A1").Formula("=1+2");
    const struct {
        const char* cell;
        const char* request;
        const char* heading;
    } cases[] = {
        {"A1", "7", "The formula in Sheet1!A1 refers to no cells."},
        {"C3:D4", "7", "Sheet1!C3 has no formula."},
        {"A1", "8", "No formula of the open workbooks refers to Sheet1!A1."},
    };
    for (const auto& one : cases) {
        presenter.work_next([&](Form& form) {
            EXPECT_EQ(form["lblCells"].Caption(), one.heading);
            EXPECT_EQ(marked(form), "Formula: ");
            form.press(Key::Enter);
            EXPECT_FALSE(form.Visible());
        });
        press(one.cell, one.request);
        EXPECT_EQ(excel::Range(application.Selection()).Address(false, false, excel::xlA1, false), one.cell);
    }
    EXPECT_THAT(said(), IsEmpty());
}

TEST_F(SmartTraceTest, AsksOnceAboutAllClosedWorkbooksAndOpensThem) {
    store.saves["/data/Old.xlsx"] = 0;
    cells("B2").Formula("=A1+" + std::string(to_rates) + "+'/data/[Old.xlsx]First'!A1+" + to_rates +
                        "+'/gone/[Lost.xlsx]P'!C1");
    presenter.work_next([&](Form& form) {
        EXPECT_THAT(listed(form, "lstCells"),
                    ElementsAre("A1", "[Rates.xlsx]First!B2", "[Old.xlsx]First!A1", "[Lost.xlsx]P!C1"));
        EXPECT_THAT(where(), HasSubstr("[Model.xlsx]Sheet1!A1 ")) << "not what was opened last";
        form.choose(form["lstCells"], 3);
        EXPECT_EQ(form["lblNote"].Caption(), "The workbook 'Lost.xlsx' is not open.");
        form.choose(form["lstCells"], 1);
        form.press(Key::Enter);
    });
    press("B2", "7");
    EXPECT_THAT(where(), HasSubstr("[Rates.xlsx]First!B2 "));
    EXPECT_THAT(
        said(),
        ElementsAre(
            "The cell you selected includes at least one reference to a workbook that is not currently open "
            "('Rates.xlsx', 'Old.xlsx', 'Lost.xlsx').  References across workbooks are not generally recommended, as "
            "unexpected changes in the referenced workbook may lead to undesired results.\r\n\r\nWould you like to "
            "open the referenced workbook(s) now?",
            "Kestrune was unable to open the workbook located at /gone/Lost.xlsx.  Please make sure the workbook has "
            "not been deleted or moved."));
    EXPECT_EQ(presenter.messages()[0].buttons, forms::vbYesNo);
    EXPECT_EQ(presenter.messages()[1].buttons, forms::vbOKOnly);
}

TEST_F(SmartTraceTest, AsksAboutAClosedWorkbookThatIsChosen) {
    cells("B2").Formula("=" + std::string(to_rates) + "+'/data/[broken.xlsx]First'!A1");
    const std::string before = "[Model.xlsx]Sheet1!B2 ";
    presenter.answer_next(forms::vbNo);
    presenter.work_next([&](Form& form) {
        presenter.answer_next(forms::vbNo);
        form.press(Key::Enter);
        EXPECT_TRUE(form.Visible()) << "another can be chosen";
        presenter.answer_next(forms::vbYes);
        form.choose(form["lstCells"], 1);
        form.press(Key::Enter);
        EXPECT_TRUE(form.Visible());
        EXPECT_THAT(where(), HasSubstr(before));
        presenter.answer_next(forms::vbYes);
        form.press(Key::Up);
        form.press(Key::Enter);
    });
    press("B2", "7");
    EXPECT_THAT(where(), HasSubstr("[Rates.xlsx]First!B2 "));
    const auto question = [](const std::string& name) {
        return "The reference you selected is to a range in a workbook that is not currently open ('" + name +
               "').  Would you like to open it now?";
    };
    EXPECT_THAT(said(), ElementsAre(testing::_, question("Rates.xlsx"), question("broken.xlsx"),
                                    "Kestrune was unable to open the workbook located at /data/broken.xlsx.  Please "
                                    "make sure the requested workbook has not been deleted or moved.",
                                    question("Rates.xlsx")));
}

// Of a closed workbook a name is only a name, and several sheets are one reference.
TEST_F(SmartTraceTest, FindsTheCellsOfWhatItOpens) {
    cells("B2").Formula("=1+SUM('/data/[Rates.xlsx]First:Second'!C3)");
    presenter.answer_next(forms::vbNo);
    presenter.work_next([&](Form& form) {
        EXPECT_THAT(listed(form, "lstCells"), ElementsAre("[Rates.xlsx]First:Second!C3"));
        presenter.answer_next(forms::vbYes);
    });
    press("B2", "7");
    EXPECT_THAT(where(), HasSubstr("[Rates.xlsx]First!C3 "));
}

}  // namespace
}  // namespace kestrune::smart
