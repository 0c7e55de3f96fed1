#include "smart/trace/TraceForm.h"

#include <algorithm>
#include <utility>

#include "automation/ResumeNext.h"
#include "automation/Text.h"
#include "core/bridges/Product.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"
#include "forms/MsgBox.h"

namespace kestrune::smart {
namespace {

using automation::ResumeNext;
using core::CellLink;
using forms::Event;

}  // namespace

TraceForm::TraceForm(const forms::FormDesign& design, const core::SharedState& shared, const char* list)
    : Form(design), shared_(shared), list_(list), range_(application().ActiveCell()), trail_(shared) {
    const excel::Worksheet sheet = range_.Worksheet();
    cell_ = {sheet.Parent().Name(), sheet.Name(), range_.Address(false, false, excel::xlA1, false)};
    if (design.sizable && shared.presenter.has_windows()) Caption(std::string(design.caption) + " (sizable)");
    on(list, Event::Click, [this](auto&) { preview(); });
    on(list, Event::DblClick, [this](auto&) { go(); });
    on("btnOK", Event::Click, [this](auto&) { go(); });
    on("btnCancel", Event::Click, [this](auto&) { Unload(); });
    on(Event::QueryClose, [this](auto&) {
        if (!gone_) trail_.back();
    });
}

void TraceForm::list(std::vector<CellLink> links) {
    links_ = std::move(links);
    std::vector<std::string> lines;
    lines.reserve(links_.size());
    for (const CellLink& link : links_) lines.push_back(line_of(link));
    (*this)[list_].List(std::move(lines));
    (*this)["txtFormula"].Text({});
    (*this)["lblNote"].Caption({});
    (*this)[list_].ListIndex(0);
}

void TraceForm::preview() {
    const ResumeNext attempt(shared_.trace);
    attempt([&] {
        const std::int32_t index = (*this)[list_].ListIndex();
        if (index < 0) return;
        const CellLink& link = links_[static_cast<std::size_t>(index)];
        tell(link, trail_.show(link));
    });
}

void TraceForm::tell(const CellLink& link, bool shown) {
    (*this)["txtFormula"].Text(link.formula);
    (*this)["txtFormula"].mark(link.position - 1, link.length);
    std::string note;
    if (!link.through.empty()) note = link.through + " stands for " + cells_text(link, cell_) + ".";
    if (!shown) {
        const bool open = is_open(application(), link.workbook);
        if (!note.empty()) note += "  ";
        note += open ? cells_text(link, cell_) + " cannot be shown: the sheet is hidden or not there."
                     : "The workbook '" + link.workbook + "' is not open.";
    }
    (*this)["lblNote"].Caption(std::move(note));
}

bool TraceForm::open(const CellLink& link, std::string_view ending) {
    const std::string path = path_of(link);
    trail_.left();
    if (shared_.spreadsheet().open_workbook(path)) return true;
    forms::MsgBox(shared_.presenter,
                  "Kestrune was unable to open the workbook located at " + path + std::string(ending), forms::vbOKOnly,
                  core::product_title);
    return false;
}

// The same reference as the open workbook has it: a name has cells now, several sheets are told one by one.
std::optional<CellLink> TraceForm::opened(const CellLink& link) {
    const std::vector<CellLink> links = grouped(find(), cell_);
    const auto same = std::ranges::find_if(links, [&](const CellLink& other) {
        return other.position == link.position && automation::same_text(other.workbook, link.workbook);
    });
    trail_.back();
    list(links);
    if (same == links.end()) return std::nullopt;
    (*this)[list_].ListIndex(static_cast<std::int32_t>(same - links.begin()));
    return *same;
}

void TraceForm::go() {
    const ResumeNext attempt(shared_.trace);
    attempt([&] {
        const std::int32_t index = (*this)[list_].ListIndex();
        if (index < 0) return Unload();
        CellLink link = links_[static_cast<std::size_t>(index)];
        if (!is_open(application(), link.workbook)) {
            const auto answer =
                forms::MsgBox(shared_.presenter,
                              "The reference you selected is to a range in a workbook that is not currently open ('" +
                                  link.workbook + "').  Would you like to open it now?",
                              forms::vbYesNo, core::product_title);
            if (answer != forms::vbYes) return;
            if (!open(link, ".  Please make sure the requested workbook has not been deleted or moved.")) return;
            const auto now = opened(link);
            if (!now) return;
            link = *now;
        }
        // What was looked at on the way is left as it was.
        trail_.back();
        const bool shown = trail_.show(link);
        tell(link, shown);
        if (!shown) return;
        gone_ = true;
        Unload();
    });
    // Who stays goes on choosing.
    if (Visible()) attempt([&] { SetFocus(list_); });
}

}  // namespace kestrune::smart
