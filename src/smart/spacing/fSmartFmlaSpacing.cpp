#include "smart/spacing/fSmartFmlaSpacing.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "core/bridges/Product.h"
#include "forms/MsgBox.h"

namespace kestrune::smart {
namespace {

using forms::ControlDesign;
using forms::Event;
using forms::Kind;
using forms::Place;

constexpr auto own_controls = std::to_array<ControlDesign>({
    {.name = "lblGroup", .caption = "Cells that go together:", .accelerator = 'C'},
    {.name = "txtFmla",
     .kind = Kind::Text,
     .place = Place::Column,
     .tip = "How many consecutive formulas go with one step of the cells that they refer to",
     .width = 48},
    {.name = "lblUnit", .place = Place::Beside},
    {.name = "lblAdjustment", .accelerator = 'a'},
    {.name = "txtReference",
     .kind = Kind::Text,
     .place = Place::Column,
     .tip = "How far one step leads in the cells that are referred to",
     .width = 48},
    {.name = "ckbShow", .kind = Kind::Check, .accelerator = 'S'},
});

constexpr auto controls = forms::joined(own_controls, forms::ok_and_cancel);

constexpr forms::FormDesign form_design{
    .name = "fSmartFmlaSpacing", .caption = "BR Kestrune -- Smart Formula Spacing", .controls = controls};

}  // namespace

fSmartFmlaSpacing::fSmartFmlaSpacing(const core::SharedState& shared, const SpacingWords& words,
                                     const SpacingOptions& options)
    : Form(form_design), shared_(shared), words_(words), options_(options) {
    on(Event::Activate, [this](auto&) { UserForm_Activate(); });
    on("btnOK", Event::Click, [this](auto&) { btnOK_Click(); });
    on("btnCancel", Event::Click, [this](auto&) { Unload(); });
}

void fSmartFmlaSpacing::UserForm_Activate() {
    (*this)["lblUnit"].Caption(std::string(words_.units));
    (*this)["lblAdjustment"].Caption(std::string(words_.adjustment));
    (*this)["ckbShow"].Caption("Show form next time you run '" + std::string(words_.title) + "'");
    (*this)["txtFmla"].Text(std::to_string(options_.group_size));
    (*this)["txtReference"].Text(std::to_string(options_.adjustment));
    (*this)["ckbShow"].Checked(options_.show);
}

void fSmartFmlaSpacing::btnOK_Click() {
    const automation::ResumeNext attempt(shared_.trace);
    // The whole number in a box; else a message says what is wrong, and the person is back in the box.
    const auto number_in = [&](const char* box, std::string_view name, std::int32_t least, core::Text out_of_range) {
        const core::diBRVBLib& library = shared_.general();
        const std::string_view text = automation::trimmed((*this)[box].Text());
        std::optional<std::int32_t> number;
        if (library.check_numeric_field(text, name)) {
            const double typed = library.typed_number(text).value_or(0);
            if (typed >= least - 0.5 && typed <= longest_spacing && std::nearbyint(typed) >= least) {
                number = static_cast<std::int32_t>(std::nearbyint(typed));
            } else {
                forms::MsgBox(shared_.presenter, library.message(out_of_range), forms::vbOKOnly, core::product_title);
            }
        }
        if (!number) SetFocus(box);
        return number;
    };
    attempt([&] {
        const auto size = number_in("txtFmla", "number of cells that go together", 1, core::Text::GroupSizeOutOfRange);
        if (!size) return;
        const auto adjustment =
            number_in("txtReference", "adjustment", -longest_spacing, core::Text::AdjustmentOutOfRange);
        if (!adjustment) return;
        options_.group_size = *size;
        options_.adjustment = *adjustment;
        options_.show = (*this)["ckbShow"].Checked();
        confirmed_ = true;
        Unload();
    });
}

}  // namespace kestrune::smart
