#include "smart/copy/fSmartCopy.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "core/bridges/Product.h"
#include "forms/MsgBox.h"
#include "smart/copy/Condition.h"
#include "smart/copy/Scan.h"

namespace kestrune::smart {
namespace {

using forms::ControlDesign;
using forms::Event;
using forms::Kind;
using forms::Place;

// Captions and tips are those of the direction, below.
constexpr auto own_controls = std::to_array<ControlDesign>({
    {.name = "fraScan", .kind = Kind::Frame},
    {.name = "optContiguous", .kind = Kind::Option, .accelerator = 'g', .in = "fraScan"},
    {.name = "optIntervals", .kind = Kind::Option, .accelerator = 'p', .in = "fraScan"},
    {.name = "optAll", .kind = Kind::Option, .accelerator = 'A', .in = "fraScan"},
    {.name = "optAllIntervals", .kind = Kind::Option, .accelerator = 'k', .in = "fraScan"},
    {.name = "lblInterval", .caption = "X:", .accelerator = 'X', .in = "fraScan", .indent = 13.5},
    {.name = "txtInterval", .kind = Kind::Text, .in = "fraScan", .place = Place::Beside, .width = 48},
    {.name = "spnValue",
     .kind = Kind::Spin,
     .in = "fraScan",
     .place = Place::Attached,
     .min = 0,
     .max = longest_interval},
    {.name = "ckbFormulas", .kind = Kind::Check, .accelerator = 'f'},
    {.name = "ckbValues", .kind = Kind::Check, .accelerator = 'v'},
    {.name = "cmbOperator", .kind = Kind::Combo, .place = Place::Beside, .items = condition_operators},
    {.name = "txtValue", .kind = Kind::Text, .place = Place::Beside, .stretch = forms::Stretch::Across, .width = 72},
    {.name = "ckbText", .kind = Kind::Check, .accelerator = 't'},
    {.name = "ckbFormat", .kind = Kind::Check, .accelerator = 'n'},
    {.name = "ckbAdjust", .kind = Kind::Check, .accelerator = 'j'},
    {.name = "ckbShow", .kind = Kind::Check, .accelerator = 'S'},
});

constexpr auto controls = forms::joined(own_controls, forms::ok_and_cancel);

constexpr forms::FormDesign form_design{
    .name = "fSmartCopy", .caption = "BR Kestrune -- Smart Copy", .controls = controls};

struct Words {
    std::string_view control;
    std::string_view caption;
    std::string_view tip;
};

// What stands in braces is the direction's: {0} down, {1} row, {2} rows, {3} Row, {4} the tool's name.
constexpr auto words = std::to_array<Words>({
    {"fraScan", "Copy {0} across from:", ""},
    {"optContiguous", "Contiguous {1} labels",
     "Copy selection {0} across from labels that are not separated by empty {2}"},
    {"optIntervals", "{3} labels separated by no more than X {2}",
     "Copy selection {0} across from labels that are not separated by more than X empty {2} from the one immediately "
     "at left"},
    {"optAll", "ALL {1} labels", "Copy selection {0} across from all {1} labels"},
    {"optAllIntervals", "All {1} labels, but skipping regular intervals of X",
     "Copy selection {0} across from all {1} labels -- skipping X {2} every time as far as possible"},
    {"ckbFormulas", "Skip cells with formulas when copying {0}", ""},
    {"ckbValues", "Skip cells with values (formulas or inputs) satisfying the condition at right when copying {0}", ""},
    {"ckbText", "Skip cells with text when copying {0}", ""},
    {"ckbFormat", "Copy font properties, number format, and horizontal alignment when copying {0}", ""},
    {"ckbAdjust", "Adjust formulas for skipped {2}", "Adjust formulas for skipped {2} when copying formulas {0}"},
    {"ckbShow", "Show next time you run '{4}'",
     "Uncheck this box if you prefer not to see this form every time you run '{4}'"},
});

constexpr std::array<std::string_view, 4> choices{"optContiguous", "optIntervals", "optAll", "optAllIntervals"};

struct Tick {
    std::string_view control;
    bool settings::SmartCopyOptions::*option;
};

constexpr auto ticks = std::to_array<Tick>({
    {"ckbFormulas", &settings::SmartCopyOptions::Formulas},
    {"ckbValues", &settings::SmartCopyOptions::Values},
    {"ckbText", &settings::SmartCopyOptions::Text},
    {"ckbFormat", &settings::SmartCopyOptions::Format},
    {"ckbAdjust", &settings::SmartCopyOptions::Adjust},
    {"ckbShow", &settings::SmartCopyOptions::Show},
});

}  // namespace

fSmartCopy::fSmartCopy(const core::SharedState& shared, const CopyDirection& direction,
                       settings::SmartCopyOptions& options)
    : Form(form_design), shared_(shared), direction_(direction), options_(options) {
    on(Event::Activate, [this](auto&) { UserForm_Activate(); });
    on("txtInterval", Event::Change, [this](auto&) { txtInterval_Change(); });
    on("spnValue", Event::Change, [this](auto&) { spnValue_Change(); });
    on("ckbValues", Event::Change, [this](auto&) { ckbValues_Change(); });
    on("btnOK", Event::Click, [this](auto&) { btnOK_Click(); });
    on("btnCancel", Event::Click, [this](auto&) { Unload(); });
}

void fSmartCopy::UserForm_Activate() {
    const auto said = [&](std::string_view text) {
        return fmt::format(fmt::runtime(text), direction_.word, direction_.line, direction_.lines, direction_.Line,
                           direction_.title);
    };
    Caption(said("BR Kestrune -- {4}"));
    for (const Words& row : words) {
        (*this)[row.control].Caption(said(row.caption));
        (*this)[row.control].ControlTipText(said(row.tip));
    }
    (*this)[choices[static_cast<std::size_t>(scan_choice(options_))]].Checked(true);
    (*this)["txtInterval"].Text(std::to_string(options_.IntervalValues));
    for (const auto& [control, option] : ticks) (*this)[control].Checked(options_.*option);
    const std::int32_t place = (*this)["cmbOperator"].place_of(options_.Operator);
    (*this)["cmbOperator"].ListIndex(std::max(place, 0));
    (*this)["txtValue"].Text(options_.Value);
    ckbValues_Change();
    for (const std::string_view choice : choices) {
        if ((*this)[choice].Checked()) SetFocus(choice);
    }
}

void fSmartCopy::txtInterval_Change() {
    const automation::ResumeNext attempt(shared_.trace);
    attempt([&] {
        const auto number = shared_.general().typed_number((*this)["txtInterval"].Text());
        const bool whole = number && *number >= 0 && *number <= longest_interval && *number == std::floor(*number);
        if (whole) (*this)["spnValue"].Number(static_cast<std::int32_t>(*number));
    });
}

void fSmartCopy::spnValue_Change() {
    const automation::ResumeNext attempt(shared_.trace);
    attempt([&] {
        const std::int32_t number = (*this)["spnValue"].Number();
        // Whoever types "07" or "7 " has said 7 already.
        const auto typed = shared_.general().typed_number((*this)["txtInterval"].Text());
        if (typed != number) (*this)["txtInterval"].Text(std::to_string(number));
    });
}

void fSmartCopy::ckbValues_Change() {
    const bool used = (*this)["ckbValues"].Checked();
    (*this)["cmbOperator"].Enabled(used);
    (*this)["txtValue"].Enabled(used);
}

void fSmartCopy::btnOK_Click() {
    const automation::ResumeNext attempt(shared_.trace);
    attempt([&] {
        const std::string_view text = automation::trimmed((*this)["txtInterval"].Text());
        const auto number = shared_.general().typed_number(text);
        const double whole = number ? std::nearbyint(*number) : 0;
        const bool in_range = whole >= 0 && whole <= longest_interval;
        if (!number || !in_range) {
            const core::Text why = number ? core::Text::IntervalOutOfRange : core::Text::IntervalIsNoNumber;
            forms::MsgBox(shared_.presenter, shared_.general().message(why), forms::vbOKOnly, core::product_title);
            SetFocus("txtInterval");
            return;
        }
        for (std::size_t i = 0; i < choices.size(); ++i) {
            if ((*this)[choices[i]].Checked()) choose_scan(options_, static_cast<ScanChoice>(i));
        }
        options_.IntervalValues = static_cast<std::int32_t>(whole);
        for (const auto& [control, option] : ticks) options_.*option = (*this)[control].Checked();
        options_.Operator = (*this)["cmbOperator"].Text();
        options_.Value = (*this)["txtValue"].Text();
        confirmed_ = true;
        Unload();
    });
}

}  // namespace kestrune::smart
