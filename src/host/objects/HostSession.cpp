#include "host/objects/HostSession.h"

#include "host/objects/Refusal.h"
#include "host/objects/SheetOrder.h"

namespace kestrune::host {

Workbook& HostSession::open(std::unique_ptr<Workbook> workbook) {
    open(*workbook);
    active_->owned = std::move(workbook);
    return *active_->model;
}

void HostSession::open(Workbook& workbook) {
    auto opened = std::make_unique<OpenWorkbook>();
    opened->model = &workbook;
    workbooks_.push_back(std::move(opened));
    active_ = workbooks_.back().get();
}

OpenWorkbook& HostSession::opened(const Workbook& workbook) const {
    for (const auto& candidate : workbooks_) {
        if (candidate->model == &workbook) return *candidate;
    }
    refuse("Workbook", "the workbook is not open");
}

Sheet* HostSession::active_sheet() const {
    if (!active_) return nullptr;
    const auto& sheets = active_->model->sheets();
    const std::int32_t position = active_->model->active_sheet;
    if (position < 0 || position >= static_cast<std::int32_t>(sheets.size())) return nullptr;
    return sheets[static_cast<std::size_t>(position)].get();
}

bool HostSession::activate(Sheet& sheet) {
    if (sheet.visibility != Visibility::Visible) return false;
    bring_up(sheet);
    activate(sheet.workbook());
    return true;
}

void HostSession::leave_hidden(Workbook& workbook) {
    const auto& sheets = workbook.sheets();
    const auto count = static_cast<std::int32_t>(sheets.size());
    const std::int32_t active = workbook.active_sheet;
    // The next sheet to the right, and at the end the last one to the left.
    for (std::int32_t distance = 0; distance < count; ++distance) {
        const std::int32_t position = active + distance < count ? active + distance : count - 1 - distance;
        Sheet& sheet = *sheets[static_cast<std::size_t>(position)];
        if (sheet.visibility == Visibility::Visible) return bring_up(sheet);
    }
}

void HostSession::bring_up(Sheet& sheet) {
    Workbook& workbook = sheet.workbook();
    const std::int32_t position = position_of(sheet);
    if (workbook.active_sheet == position) return;
    workbook.active_sheet = position;
    workbook.active_sheet_changed = true;
}

}  // namespace kestrune::host
