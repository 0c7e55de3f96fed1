#include "smart/trace/fSmartPrecedents.h"

#include <array>

#include "automation/Conversion.h"
#include "automation/ResumeNext.h"
#include "core/bridges/Product.h"
#include "excel/Worksheet.h"
#include "forms/MsgBox.h"
#include "smart/trace/TraceControls.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using core::CellLink;
using forms::ControlDesign;
using forms::Kind;
using forms::ListColumn;
using forms::Stretch;

constexpr auto columns = std::to_array<ListColumn>({{"Cells", 150}, {"In the formula", 130}, {"Value", 60}});

constexpr auto own_controls = std::to_array<ControlDesign>({
    {.name = "lblCells", .stretch = Stretch::Across, .width = trace_width},
    {.name = "lstCells",
     .kind = Kind::List,
     .stretch = Stretch::Both,
     .width = trace_width,
     .height = 75,
     .columns = columns},
});

constexpr auto controls = forms::joined(own_controls, trace_controls, forms::ok_and_cancel);

constexpr forms::FormDesign form_design{.name = "fSmartPrecedents",
                                        .caption = "BR Kestrune -- Smart Precedents",
                                        .controls = controls,
                                        .sizable = true,
                                        .width = trace_width * 1.6,
                                        .height = 270};

}  // namespace

fSmartPrecedents::fSmartPrecedents(const core::SharedState& shared) : TraceForm(form_design, shared, "lstCells") {
    on(forms::Event::Initialize, [this](auto&) { UserForm_Initialize(); });
}

std::vector<CellLink> fSmartPrecedents::find() const { return shared().spreadsheet().precedents(traced().object()); }

void fSmartPrecedents::UserForm_Initialize() {
    const ResumeNext attempt(shared().trace);
    std::vector<CellLink> links;
    attempt.assign(links, [&] { return find(); });
    attempt([&] {
        const std::vector<CellLink> closed = of_closed_workbooks(application(), links);
        if (closed.empty()) return;
        std::string names;
        for (const CellLink& link : closed) names += (names.empty() ? "" : "', '") + link.workbook;
        const auto answer = forms::MsgBox(
            shared().presenter,
            "The cell you selected includes at least one reference to a workbook that is not currently open ('" +
                names +
                "').  References across workbooks are not generally recommended, as unexpected changes in the "
                "referenced workbook may lead to undesired results.\r\n\r\nWould you like to open the referenced "
                "workbook(s) now?",
            forms::vbYesNo, core::product_title);
        if (answer != forms::vbYes) return;
        bool any = false;
        for (const CellLink& link : closed) {
            if (open(link, ".  Please make sure the workbook has not been deleted or moved.")) any = true;
        }
        if (!any) return;
        // Excel shows what it opened last.
        trail().back();
        links = find();
    });
    (*this)["lblCells"].Caption(heading(links.empty()));
    list(grouped(std::move(links), cell()));
}

std::string fSmartPrecedents::heading(bool empty) const {
    if (!empty) return cell_text() + " refers to:";
    const ResumeNext attempt(shared().trace);
    bool has_formula = false;
    attempt.assign(has_formula, [&] { return automation::to_boolean(traced().HasFormula()); });
    return has_formula ? "The formula in " + cell_text() + " refers to no cells." : cell_text() + " has no formula.";
}

// As the sheet shows it; empty for several cells, and for those that are out of reach.
std::string fSmartPrecedents::value_of(const CellLink& link) const {
    if (link.address.find_first_of(":,#") != std::string::npos) return {};
    const automation::Trace nobody;
    const ResumeNext attempt(nobody);
    std::string value;
    attempt.assign(value, [&] {
        const excel::Worksheet sheet = application().Workbooks().Item(link.workbook).Worksheets().Item(link.sheet);
        return automation::to_text(sheet.Range(link.address).Text());
    });
    return value;
}

std::string fSmartPrecedents::line_of(const CellLink& link) const {
    return column_text(cells_text(link, cell())) + "\t" + column_text(link.text) + "\t" + column_text(value_of(link));
}

}  // namespace kestrune::smart
