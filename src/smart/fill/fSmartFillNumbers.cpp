#include "smart/fill/fSmartFillNumbers.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <string>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "smart/fill/FillChecks.h"
#include "smart/fill/FillControls.h"

namespace kestrune::smart {
namespace {

using forms::ControlDesign;
using forms::Event;
using forms::Kind;
using forms::Place;

constexpr auto own_controls = std::to_array<ControlDesign>({
    {.name = "fraType", .kind = Kind::Frame, .caption = "Show as:"},
    {.name = "optNumber", .kind = Kind::Option, .caption = "Numbers", .accelerator = 'N', .in = "fraType"},
    {.name = "optCurrency",
     .kind = Kind::Option,
     .caption = "Currency",
     .accelerator = 'u',
     .in = "fraType",
     .place = Place::Beside},
    {.name = "optPercent",
     .kind = Kind::Option,
     .caption = "Percentages",
     .accelerator = 'P',
     .in = "fraType",
     .place = Place::Beside},
    {.name = "lblStart", .caption = "Start value:", .accelerator = 'S'},
    {.name = "txtStart", .kind = Kind::Text, .place = Place::Column, .width = 90},
    {.name = "lblEnd", .caption = "End value:", .accelerator = 'E'},
    {.name = "txtEnd", .kind = Kind::Text, .place = Place::Column, .width = 90},
    {.name = "lblInterval", .caption = "Interval:", .accelerator = 'I'},
    {.name = "txtInterval", .kind = Kind::Text, .place = Place::Column, .width = 90},
});

constexpr std::array<ControlDesign, 1> show_again{{
    {.name = "ckbShow",
     .kind = Kind::Check,
     .caption = "Show form next time you run 'Smart Fill Numbers'",
     .accelerator = 'x'},
}};

constexpr auto controls = forms::joined(own_controls, fill_controls, show_again, forms::ok_and_cancel);

constexpr forms::FormDesign form_design{
    .name = "fSmartFillNumbers", .caption = "Brannoch Kestrune -- Smart Fill Numbers", .controls = controls};

struct Display {
    std::string_view control;
    std::string_view style;  // that it proposes
};

// In the order of the option Type, from 1 on.
constexpr std::array<Display, 3> displays{{{"optNumber", "BR General"},
                                           {"optCurrency", "BR US Dollar No Decimals"},
                                           {"optPercent", "BR Percent No Decimals"}}};

struct NumberBox {
    const char* control;
    const char* name;  // in messages
    double settings::SmartFillNumbersOptions::*option;
};

constexpr std::array<NumberBox, 3> boxes{{
    {"txtStart", "start value", &settings::SmartFillNumbersOptions::StartValue},
    {"txtEnd", "end value", &settings::SmartFillNumbersOptions::EndValue},
    {"txtInterval", "interval value", &settings::SmartFillNumbersOptions::Interval},
}};

}  // namespace

fSmartFillNumbers::fSmartFillNumbers(const core::SharedState& shared, settings::SmartFillNumbersOptions& options)
    : Form(form_design), shared_(shared), options_(options) {
    on(Event::Activate, [this](auto&) { UserForm_Activate(); });
    for (const Display& display : displays) {
        on(display.control, Event::Click,
           [this, &display](auto&) { (*this)["cmbStyle"].Text(std::string(display.style)); });
    }
    on("btnOK", Event::Click, [this](auto&) { btnOK_Click(); });
    on("btnCancel", Event::Click, [this](auto&) { Unload(); });
    connect_fill_controls(shared_, *this);
}

void fSmartFillNumbers::UserForm_Activate() {
    for (const NumberBox& box : boxes) (*this)[box.control].Text(automation::to_text(options_.*box.option));
    const std::size_t type = static_cast<std::size_t>(std::clamp(options_.Type, 1, 3)) - 1;
    (*this)[displays[type].control].Checked(true);
    SetFocus(displays[type].control);
    show_fill_options(shared_, *this, options_.Spacing, options_.Across, options_.Style);
    (*this)["ckbShow"].Checked(options_.Show);
}

void fSmartFillNumbers::btnOK_Click() {
    const automation::ResumeNext attempt(shared_.trace);
    attempt([&] {
        settings::SmartFillNumbersOptions wanted = options_;
        for (const NumberBox& box : boxes) {
            const std::string_view text = automation::trimmed((*this)[box.control].Text());
            if (!shared_.general().check_numeric_field(text, box.name)) return SetFocus(box.control);
            wanted.*box.option = shared_.general().typed_number(text).value_or(0);
        }
        const auto spacing = spacing_in(shared_, *this);
        if (!spacing) return SetFocus("txtSpacing");
        wanted.Spacing = *spacing;
        for (std::size_t i = 0; i < displays.size(); ++i) {
            if ((*this)[displays[i].control].Checked()) wanted.Type = static_cast<std::int32_t>(i) + 1;
        }
        wanted.Across = (*this)["optAcross"].Checked();
        wanted.Style = (*this)["cmbStyle"].Text();
        wanted.Show = (*this)["ckbShow"].Checked();
        switch (check_fill(shared_, wanted)) {
            case FillProblem::None:
                options_ = wanted;
                confirmed_ = true;
                return Unload();
            case FillProblem::Interval:
                return SetFocus("txtInterval");
            case FillProblem::Spacing:
                return SetFocus("txtSpacing");
            default:
                return;
        }
    });
}

}  // namespace kestrune::smart
