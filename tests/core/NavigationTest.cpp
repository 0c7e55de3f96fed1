#include "core/bridges/Command.h"
#include "core/bridges/SharedState.h"
#include "smart/CleanUpCommands.h"
#include "styles/AddInInHost.h"

namespace kestrune::core {
namespace {

using automation::Value;

struct Navigation : styles::AddInInHost {
    [[nodiscard]] excel::Workbook book() const { return application.ActiveWorkbook(); }
    [[nodiscard]] std::string active() const { return excel::Worksheet(application.ActiveSheet()).Name(); }
    [[nodiscard]] std::string where() const { return active() + "!" + excel::Range(application.Selection()).Address(); }
    void run(std::string_view request) const { automation::call(*global, "RunMacro", {request}); }
    void select(const char* sheet, const char* address) const {
        book().Worksheets().Item(sheet).Activate();
        book().Worksheets().Item(sheet).Range(address).Select();
    }
};

TEST_F(Navigation, GoesRoundTheVisibleWorksheets) {
    for (const char* name : {"Two", "Hidden", "Four's"}) workbook->add_sheet(name);
    workbook->add_sheet("Chart", host::SheetKind::Chartsheet);
    book().Worksheets().Item("Hidden").Visible(0);
    const struct {
        const char* from;
        const char* request;
        const char* to;
    } rows[] = {
        {"Sheet1", "13", "Two"},   {"Two", "13", "Four's"},    {"Four's", "13", "Sheet1"}, {"Sheet1", "14", "Four's"},
        {"Four's", "14", "Two"},   {"Two", "14", "Sheet1"},    {"Two", "91", "Sheet1"},    {"Sheet1", "91", "Sheet1"},
        {"Two", "92", "Four's"},   {"Four's", "92", "Four's"}, {"Chart", "13", "Sheet1"},  {"Chart", "14", "Four's"},
        {"Chart", "92", "Four's"},
    };
    for (const auto& [from, request, to] : rows) {
        const automation::ObjectRef sheets = automation::to_object(automation::get(*book().object(), "Sheets"));
        automation::call(*automation::to_object(automation::get(*sheets, "Item", {from})), "Activate");
        run(request);
        EXPECT_EQ(active(), to) << request << " from " << from;
    }
}

TEST_F(Navigation, BookmarksAreVisitedInTheOrderOfTheirPlaces) {
    workbook->add_sheet("It's");
    workbook->add_sheet("Hidden");
    for (const auto& [sheet, address] :
         {std::pair("It's", "C3"), {"Sheet1", "B9:C10"}, {"Hidden", "A1"}, {"Sheet1", "D2,F4:G5"}, {"It's", "A3"}}) {
        select(sheet, address);
        run("9");
    }
    const excel::Names names = book().Names();
    ASSERT_EQ(names.Count(), 5) << "those of one second have names of their own";
    for (std::int32_t i = 1; i <= 5; ++i) {
        EXPECT_TRUE(names.Item(i).text().starts_with("_bbr.KestruneBookmark.")) << names.Item(i).text();
        EXPECT_TRUE(names.Item(i).text().ends_with(".ebr"));
        EXPECT_FALSE(names.Item(i).Visible());
    }
    book().Worksheets().Item("Hidden").Visible(0);

    select("Sheet1", "A1");
    const char* const forward[] = {"Sheet1!$D$2,$F$4:$G$5", "Sheet1!$B$9:$C$10", "It's!$A$3", "It's!$C$3",
                                   "Sheet1!$D$2,$F$4:$G$5"};
    for (const char* place : forward) {
        run("10");
        EXPECT_EQ(where(), place);
    }
    for (const char* place : {"It's!$C$3", "It's!$A$3", "Sheet1!$B$9:$C$10"}) {
        run("11");
        EXPECT_EQ(where(), place);
    }

    book().Names().Add("Rate", "=0.05");
    run("12");
    ASSERT_EQ(names.Count(), 1);
    EXPECT_EQ(names.Item(1).text(), "Rate");
    const std::size_t before = presenter.messages().size();
    run("10");
    run("11");
    ASSERT_EQ(presenter.messages().size(), before + 2);
    EXPECT_EQ(presenter.messages().back().text, "The active workbook has no bookmarks.");
    EXPECT_EQ(where(), "Sheet1!$B$9:$C$10");
}

TEST_F(Navigation, ALostBookmarkLeadsNowhere) {
    book().Names().Add("_bbr.KestruneBookmark.lost.ebr", "=Sheet1!#REF!", false);
    select("Sheet1", "B2");
    run("9");
    select("Sheet1", "A1");
    run("10");
    EXPECT_EQ(where(), "Sheet1!$B$2");
    run("12");
    EXPECT_EQ(book().Names().Count(), 0);
}

TEST_F(Navigation, CleanUpAsksAndTells) {
    book().Names().Add("Lost", "=Sheet1!#REF!");
    book().Names().Add("Hidden", "=#REF!", false);
    book().Names().Add("Rate", "=Sheet1!$A$1");
    const struct {
        CommandBody command;
        const char* question;
        const char* report;
    } rows[] = {
        {&smart::RemoveInvalidRangeNames,
         "This optimization tool will remove all custom defined range names with references that are no longer valid "
         "from "
         "the active workbook.  Would you like to proceed?",
         "All invalid custom defined range names have been successfully deleted from the active workbook."},
        {&smart::RemoveUnusedNumberFormats,
         "This optimization tool will remove all unused custom number formats from the active workbook.  Would you "
         "like to "
         "proceed?",
         "All unused custom number formats have been successfully deleted from the active workbook."},
    };
    SharedState shared{presenter, trace};
    shared.application = application.object();
    shared.spreadsheet_library = std::make_shared<diBRXLLib>(trace);
    ASSERT_TRUE(shared.spreadsheet_library->Create());
    for (const auto& [command, question, report] : rows) {
        const std::size_t before = presenter.messages().size();
        const std::int32_t names = book().Names().Count();
        presenter.answer_next(forms::vbCancel);
        command(shared, 0);
        ASSERT_EQ(presenter.messages().size(), before + 1);
        EXPECT_EQ(presenter.messages().back().text, question);
        EXPECT_EQ(presenter.messages().back().buttons, forms::vbOKCancel);
        EXPECT_EQ(presenter.messages().back().caption, "Brannoch Kestrune");
        EXPECT_EQ(book().Names().Count(), names);
        command(shared, 0);
        ASSERT_EQ(presenter.messages().size(), before + 3);
        EXPECT_EQ(presenter.messages().back().text, report);
        EXPECT_EQ(presenter.messages().back().buttons, forms::vbOKOnly);
    }
    ASSERT_EQ(book().Names().Count(), 1);
    EXPECT_EQ(book().Names().Item(1).text(), "Rate");
    session.close(*workbook);
    const std::size_t before = presenter.messages().size();
    for (const auto& row : rows) row.command(shared, 0);
    run("16");
    EXPECT_EQ(presenter.messages().size(), before);
}

TEST_F(Navigation, TheSheetStyleIsAppliedAfterAQuestion) {
    cells("B2").FormatConditions().Add(excel::xlCellValue, excel::xlGreater, "1");
    presenter.answer_next(forms::vbCancel);
    run("16");
    EXPECT_EQ(cells("B2").FormatConditions().Count(), 1);
    ASSERT_EQ(presenter.messages().size(), 1U);
    EXPECT_EQ(
        presenter.messages().front().text,
        "This feature will apply the selected sheet style from the user settings to 'Sheet1' and may not be undone.  "
        "Do you wish to proceed?");
    EXPECT_EQ(presenter.messages().front().buttons, 65);
    run("16");
    EXPECT_EQ(cells("B2").FormatConditions().Count(), 0);
    EXPECT_EQ(cells("XFD1048576").Font().Name(), Value("Times New Roman"));
}

TEST_F(Navigation, ThePaintbrushPaintsWhatItCaptured) {
    cells("B2").Font().Bold(true);
    cells("B2").NumberFormat("0.0%");
    cells("B2").Interior().Color(0x00FFFF);
    press("B2:C3", "17");
    press("E5:F6", "18");
    EXPECT_EQ(styles::look_of(cells("F6")), styles::look_of(cells("B2")));
    press("C9", "17");
    press("E5", "18");
    EXPECT_EQ(styles::look_of(cells("E5")), styles::look_of(cells("C9")));
    EXPECT_EQ(styles::look_of(cells("F6")), styles::look_of(cells("B2")));
}

}  // namespace
}  // namespace kestrune::core
