#include "smart/fill/fSmartFillDates.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "automation/ResumeNext.h"
#include "settings/Days.h"
#include "smart/fill/FillChecks.h"
#include "smart/fill/FillControls.h"
#include "smart/fill/Series.h"

namespace kestrune::smart {
namespace {

using automation::Date;
using forms::ControlDesign;
using forms::Event;
using forms::Kind;
using forms::Place;

constexpr auto own_controls = std::to_array<ControlDesign>({
    {.name = "fraUnit", .kind = Kind::Frame, .caption = "Step by:"},
    {.name = "optDay", .kind = Kind::Option, .caption = "Days", .accelerator = 'y', .in = "fraUnit"},
    {.name = "optMonth",
     .kind = Kind::Option,
     .caption = "Months",
     .accelerator = 'M',
     .in = "fraUnit",
     .place = Place::Beside},
    {.name = "optYear",
     .kind = Kind::Option,
     .caption = "Years",
     .accelerator = 'r',
     .in = "fraUnit",
     .place = Place::Beside},
    {.name = "lblPeriodEnd", .caption = "Period end:", .accelerator = 'P'},
    {.name = "cmbPeriodEnd",
     .kind = Kind::Combo,
     .place = Place::Column,
     .tip = "Begin with this period end in the year of the start date",
     .width = 90},
    {.name = "lblStart", .caption = "Start date:", .accelerator = 'S'},
    {.name = "txtStart", .kind = Kind::Text, .place = Place::Column, .width = 90},
    {.name = "lblEnd", .caption = "End date:", .accelerator = 'E'},
    {.name = "txtEnd", .kind = Kind::Text, .place = Place::Column, .width = 90},
});

constexpr std::array<ControlDesign, 1> show_again{{
    {.name = "ckbShow",
     .kind = Kind::Check,
     .caption = "Show form next time you run 'Smart Fill Dates'",
     .accelerator = 'n'},
}};

constexpr auto controls = forms::joined(own_controls, fill_controls, show_again, forms::ok_and_cancel);

constexpr forms::FormDesign form_design{
    .name = "fSmartFillDates", .caption = "Brannoch Kestrune -- Smart Fill Dates", .controls = controls};

constexpr std::array<std::string_view, 3> units{"optDay", "optMonth", "optYear"};  // in the order of date_steps

constexpr std::array<std::string_view, 12> month_ends{"Jan 31", "Feb 28", "Mar 31", "Apr 30", "May 31", "Jun 30",
                                                      "Jul 31", "Aug 31", "Sep 30", "Oct 31", "Nov 30", "Dec 31"};
constexpr std::int32_t december = 12;

// "1/31/2026"
std::string typed_text(Date date) {
    const auto day = settings::day_of(date);
    return std::to_string(static_cast<unsigned>(day.month())) + "/" + std::to_string(static_cast<unsigned>(day.day())) +
           "/" + std::to_string(static_cast<int>(day.year()));
}

}  // namespace

fSmartFillDates::fSmartFillDates(const core::SharedState& shared, settings::SmartFillDatesOptions& options)
    : Form(form_design), shared_(shared), options_(options) {
    on(Event::Activate, [this](auto&) { UserForm_Activate(); });
    for (const auto unit : units) on(unit, Event::Click, [this](auto&) { offer_period_ends(); });
    on("cmbPeriodEnd", Event::Click, [this](auto&) { cmbPeriodEnd_Click(); });
    on("btnOK", Event::Click, [this](auto&) { btnOK_Click(); });
    on("btnCancel", Event::Click, [this](auto&) { Unload(); });
    connect_fill_controls(shared_, *this);
}

void fSmartFillDates::UserForm_Activate() {
    (*this)["txtStart"].Text(typed_text(options_.StartDate));
    (*this)["txtEnd"].Text(typed_text(options_.EndDate));
    const auto unit = static_cast<std::size_t>(&date_step(options_.DateUnit) - &date_steps[0]);
    (*this)[units[unit]].Checked(true);
    SetFocus(units[unit]);
    show_fill_options(shared_, *this, options_.Spacing, options_.Across, options_.Style);
    (*this)["ckbShow"].Checked(options_.Show);
}

void fSmartFillDates::offer_period_ends() {
    std::vector<std::string> ends;
    if ((*this)["optMonth"].Checked()) ends.assign(month_ends.begin(), month_ends.end());
    if ((*this)["optYear"].Checked()) ends.emplace_back(month_ends.back());
    (*this)["cmbPeriodEnd"].Enabled(!ends.empty());
    (*this)["cmbPeriodEnd"].List(std::move(ends));
}

// The start is moved to the period end in its year, by years the end as well.
void fSmartFillDates::cmbPeriodEnd_Click() {
    const automation::ResumeNext attempt(shared_.trace);
    const bool years = (*this)["optYear"].Checked();
    const std::int32_t month = years ? december : (*this)["cmbPeriodEnd"].ListIndex() + 1;
    const auto move = [&](const char* box) {
        attempt([&] {
            const auto date = shared_.general().typed_date((*this)[box].Text());
            if (date && date->serial >= first_fill_date.serial) (*this)[box].Text(typed_text(month_end(month, *date)));
        });
    };
    move("txtStart");
    if (years) move("txtEnd");
}

void fSmartFillDates::btnOK_Click() {
    const automation::ResumeNext attempt(shared_.trace);
    attempt([&] {
        settings::SmartFillDatesOptions wanted = options_;
        // What is no date is refused as one out of range.
        const auto date_in = [&](const char* box) {
            const auto date = shared_.general().typed_date((*this)[box].Text());
            return date ? Date{std::floor(date->serial)} : Date{-1};
        };
        wanted.StartDate = date_in("txtStart");
        wanted.EndDate = date_in("txtEnd");
        for (std::size_t i = 0; i < units.size(); ++i) {
            if ((*this)[units[i]].Checked()) wanted.DateUnit = date_steps[i].interval;
        }
        const auto spacing = spacing_in(shared_, *this);
        if (!spacing) return SetFocus("txtSpacing");
        wanted.Spacing = *spacing;
        wanted.Across = (*this)["optAcross"].Checked();
        wanted.Style = (*this)["cmbStyle"].Text();
        wanted.Show = (*this)["ckbShow"].Checked();
        switch (check_fill(shared_, wanted)) {
            case FillProblem::None:
                options_ = wanted;
                confirmed_ = true;
                return Unload();
            case FillProblem::Start:
                return SetFocus("txtStart");
            case FillProblem::End:
                return SetFocus("txtEnd");
            case FillProblem::Spacing:
                return SetFocus("txtSpacing");
            default:
                return;
        }
    });
}

}  // namespace kestrune::smart
