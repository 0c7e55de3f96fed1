#include "smart/trace/fSmartDependents.h"

#include <array>

#include "automation/ResumeNext.h"
#include "smart/trace/TraceControls.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using core::CellLink;
using forms::ControlDesign;
using forms::Kind;
using forms::ListColumn;
using forms::Place;
using forms::Stretch;

constexpr auto columns = std::to_array<ListColumn>({{"Cells", 130}, {"Formula", 200}});

constexpr auto own_controls = std::to_array<ControlDesign>({
    {.name = "lblCells", .stretch = Stretch::Across, .width = trace_width},
    {.name = "lblBox", .caption = "Show those on:", .accelerator = 'S'},
    {.name = "cmbBox", .kind = Kind::Combo, .place = Place::Beside, .stretch = Stretch::Across, .width = 150},
    {.name = "lstBox",
     .kind = Kind::List,
     .caption = "Cells",
     .stretch = Stretch::Both,
     .width = trace_width,
     .height = 75,
     .columns = columns},
});

constexpr auto controls = forms::joined(own_controls, trace_controls, forms::ok_and_cancel);

constexpr forms::FormDesign form_design{.name = "fSmartDependents",
                                        .caption = "BR Kestrune -- Smart Dependents",
                                        .controls = controls,
                                        .sizable = true,
                                        .width = trace_width * 1.6,
                                        .height = 270};

std::string counted(const std::string& what, std::size_t count) { return what + " (" + std::to_string(count) + ")"; }

}  // namespace

fSmartDependents::fSmartDependents(const core::SharedState& shared) : TraceForm(form_design, shared, "lstBox") {
    on(forms::Event::Initialize, [this](auto&) { UserForm_Initialize(); });
    on(forms::Event::Activate, [this](auto&) { SetFocus("lstBox"); });
    on("cmbBox", forms::Event::Click, [this](auto&) { cmbBox_Click(); });
}

std::vector<CellLink> fSmartDependents::find() const { return shared().spreadsheet().dependents(traced().object()); }

void fSmartDependents::UserForm_Initialize() {
    const ResumeNext attempt(shared().trace);
    attempt.assign(all_, [&] { return grouped(find(), cell()); });
    (*this)["lblCells"].Caption(all_.empty() ? "No formula of the open workbooks refers to " + cell_text() + "."
                                             : "Formulas that refer to " + cell_text() + ":");
    if (all_.empty()) return;
    std::vector<std::string> names{counted("All sheets", all_.size())};
    groups_ = {{0, all_.size()}};
    for (std::size_t first = 0; first < all_.size();) {
        const std::string sheet = sheet_text(all_[first], cell());
        std::size_t end = first;
        while (end < all_.size() && sheet_text(all_[end], cell()) == sheet) ++end;
        names.push_back(counted(sheet, end - first));
        groups_.push_back({first, end - first});
        first = end;
    }
    (*this)["cmbBox"].List(std::move(names));
    (*this)["cmbBox"].ListIndex(0);
}

void fSmartDependents::cmbBox_Click() {
    const auto chosen = static_cast<std::size_t>((*this)["cmbBox"].ListIndex());
    const Group& group = groups_[chosen];
    const auto first = all_.begin() + static_cast<std::ptrdiff_t>(group.first);
    list({first, first + static_cast<std::ptrdiff_t>(group.count)});
}

std::string fSmartDependents::line_of(const CellLink& link) const {
    return column_text(cells_text(link, cell())) + "\t" + column_text(link.formula);
}

}  // namespace kestrune::smart
