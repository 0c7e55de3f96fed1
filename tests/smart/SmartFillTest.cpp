#include "forms/Form.h"
#include "settings/Days.h"
#include "settings/cUserSettings.h"
#include "smart/fill/Series.h"
#include "styles/AddInInHost.h"

namespace kestrune::smart {
namespace {

using automation::Date;
using automation::Value;
using forms::Form;
using forms::Key;
using settings::day;
using testing::ElementsAre;

Date on(int year, unsigned month, unsigned day_of_month) { return day(year, month, day_of_month).value(); }

TEST(FillSeries, DatesKeepTheEndsOfMonths) {
    const struct {
        Date start, end;
        const char* interval;
        const char* dates;
    } cases[] = {
        {on(2027, 1, 31), on(2027, 4, 30), "m", "2027-01-31 2027-02-28 2027-03-31 2027-04-30 "},
        {on(2028, 1, 31), on(2028, 3, 30), "m", "2028-01-31 2028-02-29 "},
        {on(2027, 2, 28), on(2027, 4, 30), "m", "2027-02-28 2027-03-31 2027-04-30 "},
        {on(2028, 2, 28), on(2028, 4, 30), "m", "2028-02-28 2028-03-28 2028-04-28 "},
        {on(2026, 12, 30), on(2027, 3, 31), "m", "2026-12-30 2027-01-30 2027-02-28 2027-03-30 "},
        {on(2028, 2, 29), on(2032, 12, 31), "yyyy", "2028-02-29 2029-02-28 2030-02-28 2031-02-28 2032-02-29 "},
        {on(2026, 2, 28), on(2028, 12, 31), "yyyy", "2026-02-28 2027-02-28 2028-02-29 "},
        {on(2027, 12, 30), on(2028, 1, 2), "d", "2027-12-30 2027-12-31 2028-01-01 2028-01-02 "},
        {on(2027, 5, 5), on(2027, 5, 5), "yyyy", "2027-05-05 "},
        {on(9999, 12, 1), on(9999, 12, 31), "m", "9999-12-01 "},
    };
    for (const auto& one : cases) {
        std::string dates;
        for (const Date date : date_series(one.start, one.end, date_step(one.interval))) {
            dates += settings::day_text(date) + " ";
        }
        EXPECT_EQ(dates, one.dates);
    }
    EXPECT_EQ(month_end(2, on(2028, 5, 5)), on(2028, 2, 29));
    EXPECT_EQ(month_end(2, on(2027, 5, 5)), on(2027, 2, 28));
}

TEST(FillSeries, NumbersGoAsFarAsStepsLead) {
    EXPECT_THAT(number_series(1, 4, 1), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(number_series(1, 10, 4), ElementsAre(1, 5, 9)) << "an interval that does not divide";
    EXPECT_THAT(number_series(10, 1, 4), ElementsAre(10, 6, 2));
    EXPECT_THAT(number_series(5, 5, 3), ElementsAre(5));
    EXPECT_EQ(number_series(0, 1, 0.1).size(), 11U);
    EXPECT_DOUBLE_EQ(number_series(0, 1, 0.1).back(), 1);
}

TEST(FillSeries, SizesAreEstimatedByTheRule) {
    EXPECT_EQ(estimated_dates(on(2027, 1, 31), on(2027, 12, 31), date_step("m"), 1), 12);
    EXPECT_EQ(estimated_dates(on(2027, 1, 1), on(2029, 9, 26), date_step("d"), 1), 1000);
    EXPECT_EQ(estimated_dates(on(2027, 1, 1), on(2029, 9, 27), date_step("d"), 1), 1001);
    EXPECT_EQ(estimated_numbers(1, 4, 2, 1), 2) << "2.5, to the even neighbour";
    EXPECT_EQ(estimated_numbers(1000, 1, 1, 1), 1000);
    EXPECT_EQ(estimated_numbers(0, 1, 0.25, 3), 13) << "an interval that is none as a whole number counts as it is";
}

struct SmartFillTest : styles::AddInInHost {
    SmartFillTest() {
        stop();
        core::register_add_in(state);
        start();
        dates() = {.StartDate = on(2027, 1, 31), .EndDate = on(2027, 4, 30), .Show = false};
        numbers() = {.Show = false};
        // Tests know no file of settings, and so no library of styles.
        state->settings().LoadDefaults();
        dates().Show = numbers().Show = false;
        dates().StartDate = on(2027, 1, 31);
        dates().EndDate = on(2027, 4, 30);
    }
    ~SmartFillTest() override { stop(); }
    [[nodiscard]] settings::SmartFillDatesOptions& dates() const { return state->settings().SmartFillDates; }
    [[nodiscard]] settings::SmartFillNumbersOptions& numbers() const { return state->settings().SmartFillNumbers; }
    // The values of cells; dates as days.
    [[nodiscard]] std::string values(std::string_view address) const {
        std::string text;
        const Value block = cells(address).Value();
        for (const Value& one : block.array()->elements()) {
            const auto* date = one.if_is<Date>();
            text += (date ? settings::day_text(*date) : automation::to_text(one)) + "|";
        }
        return text;
    }

    std::shared_ptr<core::SharedState> state = std::make_shared<core::SharedState>(presenter, trace);
};

TEST_F(SmartFillTest, FillsFromTheFirstSelectedCell) {
    press("C3:D9", "5");
    EXPECT_EQ(values("C3:H3"), "2027-01-31|2027-02-28|2027-03-31|2027-04-30|||");
    EXPECT_EQ(cells("F3").NumberFormat(), Value("m/d/yyyy"));
    cells("C6").Formula("kept");
    dates().Across = false;
    dates().Spacing = 2;
    press("C5", "5");
    EXPECT_EQ(values("C5:C12"), "2027-01-31|kept|2027-02-28||2027-03-31||2027-04-30||");
    automation::call(*global, "BRUndo");
    EXPECT_EQ(values("C5:C12"), "|kept|||||||");
    numbers().EndValue = 0.5;
    numbers().Interval = 0.25;
    numbers().Type = 3;
    numbers().Style = "BR Percent One Decimal";
    numbers().Across = true;
    press("J2", "6");
    EXPECT_EQ(values("J2:M2"), "1|0.75|0.5||");
    EXPECT_EQ(cells("L2").NumberFormat(), Value("0.0%_);(0.0%)"));
    EXPECT_EQ(cells("M2").NumberFormat(), Value("General"));
    EXPECT_TRUE(presenter.messages().empty());
}

TEST_F(SmartFillTest, TellsWhatItCannotFill) {
    const struct {
        const char* what;
        const char* command;
        const char* selected;
        std::function<void()> wrong;
        const char* said;
    } cases[] = {
        {"end before start", "5", "B2", [&] { dates().EndDate = on(2027, 1, 30); }, "The end date must not be"},
        {"no date", "5", "B2", [&] { dates().StartDate = {60}; }, "Please enter a date from 3/1/1900"},
        {"beyond dates", "5", "B2", [&] { dates().EndDate = {2958466}; }, "Please enter a date from 3/1/1900"},
        {"spacing", "5", "B2", [&] { dates().Spacing = 0; }, "Please enter a spacing"},
        {"edge", "5", "XFB2", [] {}, "The series does not fit"},
        {"zero interval", "6", "B2", [&] { numbers().Interval = 0; }, "Please enter an interval value"},
        {"negative interval", "6", "B2", [&] { numbers().Interval = -1; }, "Please enter an interval value"},
        {"bottom", "6", "B1048570", [] {}, "The series does not fit"},
        {"no end", "6", "B2", [&] { numbers().EndValue = 1e300; }, "The series does not fit"},
    };
    for (const auto& one : cases) {
        const auto kept_dates = dates();
        const auto kept_numbers = numbers();
        one.wrong();
        const std::size_t before = presenter.messages().size();
        press(one.selected, one.command);
        ASSERT_EQ(presenter.messages().size(), before + 1) << one.what;
        EXPECT_THAT(presenter.messages().back().text, testing::StartsWith(one.said)) << one.what;
        EXPECT_EQ(cells(one.selected).Value(), Value()) << one.what;
        dates() = kept_dates;
        numbers() = kept_numbers;
    }
}

TEST_F(SmartFillTest, AsksBeforeItFillsMany) {
    numbers().EndValue = 1000;
    press("B1", "6");
    EXPECT_TRUE(presenter.messages().empty());
    EXPECT_EQ(cells("B1000").Value(), Value(1000.0));
    numbers().EndValue = 1001;
    presenter.answer_next(forms::vbNo);
    press("C1", "6");
    EXPECT_EQ(cells("C1").Value(), Value());
    dates() = {
        .StartDate = on(2027, 1, 1), .EndDate = on(2029, 9, 27), .DateUnit = "d", .Across = false, .Show = false};
    presenter.answer_next(forms::vbYes);
    press("D1", "5");
    EXPECT_EQ(cells("D1001").Formula(), Value("47388")) << "the date alone where no style is named";
    ASSERT_EQ(presenter.messages().size(), 2U);
    EXPECT_EQ(
        presenter.messages()[0].text,
        "Filling in the numbers you have requested would require 1001 cells.  Are you sure you want to continue?");
    EXPECT_EQ(presenter.messages()[1].text,
              "Filling in the dates you have requested would require approximately 1001 cells.  Are you sure you want "
              "to continue?");
    EXPECT_EQ(presenter.messages()[1].buttons, forms::vbYesNo);
    EXPECT_EQ(presenter.messages()[1].caption, "Brannoch Kestrune");
    const std::int64_t before = session.calls();
    presenter.answer_next(forms::vbYes);
    press("E1", "6");
    EXPECT_LT(session.calls() - before, 300);
}

TEST_F(SmartFillTest, TheDialogsTakeTheOptions) {
    dates().Show = numbers().Show = true;
    presenter.work_next([&](Form& form) {
        EXPECT_EQ(form.Caption(), "Brannoch Kestrune -- Smart Fill Dates");
        EXPECT_TRUE(form["optMonth"].Checked());
        EXPECT_EQ(form["cmbPeriodEnd"].List().size(), 12U);
        EXPECT_EQ(form["txtStart"].Text(), "1/31/2027");
        form.type(form["txtStart"], "5/5/2028");
        form.choose(form["cmbPeriodEnd"], form["cmbPeriodEnd"].place_of("Feb 28"));
        EXPECT_EQ(form["txtStart"].Text(), "2/29/2028");
        form.click(form["optYear"]);
        EXPECT_THAT(form["cmbPeriodEnd"].List(), ElementsAre("Dec 31"));
        form.choose(form["cmbPeriodEnd"], 0);
        EXPECT_EQ(form["txtStart"].Text() + " " + form["txtEnd"].Text(), "12/31/2028 12/31/2027");
        const std::pair<const char*, const char*> wrong[] = {{"txtEnd", "soon"},
                                                             {"txtEnd", "12/31/2027"},
                                                             {"txtSpacing", "many"},
                                                             {"txtSpacing", "0"},
                                                             {"txtStart", "13/13/2028"}};
        for (const auto& [box, text] : wrong) {
            form.type(form["txtStart"], "Dec 31, 2028");
            form.type(form["txtEnd"], "2030-12-31");
            form.type(form["txtSpacing"], "1");
            form.type(form[box], text);
            form.press(Key::Enter);
            EXPECT_TRUE(form.Visible()) << box << text;
            EXPECT_EQ(form.ActiveControl(), &form[box]) << text;
        }
        form.type(form["txtStart"], "Dec 31, 2028");
        form.click(form["optDay"]);
        EXPECT_FALSE(form["cmbPeriodEnd"].Enabled());
        form.click(form["optYear"]);
        form.choose(form["cmbStyle"], form["cmbStyle"].place_of("BR Date Short 1 (US)"));
        form.press(Key::Enter);
    });
    press("B2", "5");
    EXPECT_EQ(presenter.messages().size(), 5U);
    EXPECT_EQ(values("B2:E2"), "2028-12-31|2029-12-31|2030-12-31||");
    EXPECT_EQ(dates().DateUnit, "yyyy");
    presenter.work_next([&](Form& form) {
        EXPECT_EQ(form.Caption(), "Brannoch Kestrune -- Smart Fill Numbers");
        EXPECT_EQ(form["cmbStyle"].Text(), "BR General");
        form.click(form["optCurrency"]);
        EXPECT_EQ(form["cmbStyle"].Text(), "BR US Dollar No Decimals");
        for (const auto& [box, name] :
             {std::pair{"txtStart", "start value"}, {"txtEnd", "end value"}, {"txtInterval", "interval value"}}) {
            const std::string kept = form[box].Text();
            form.type(form[box], "x");
            form.press(Key::Enter);
            EXPECT_EQ(presenter.messages().back().text, std::string("Please enter a number for the ") + name + ".");
            EXPECT_EQ(form.ActiveControl(), &form[box]);
            form.type(form[box], kept);
        }
        form.type(form["txtStart"], "$1,500");
        form.type(form["txtEnd"], "$1,000");
        form.type(form["txtInterval"], "250");
        form.press(Key::Enter);
    });
    press("G1", "6");
    EXPECT_EQ(values("G1:G4"), "1500|1250|1000||");
    EXPECT_EQ(cells("G3").NumberFormat(), Value("[$$-409]#,##0_);([$$-409]#,##0)"));
    EXPECT_EQ(numbers().Type, 2);
}

}  // namespace
}  // namespace kestrune::smart
