#include "host/objects/CellRange.h"

#include <algorithm>

#include "host/objects/RangeObject.h"
#include "host/objects/Refusal.h"
#include "host/objects/SheetObject.h"

namespace kestrune::host {
namespace {

// Excel's limit of cell formats in one workbook.
constexpr std::uint32_t most_formats = 65'490;

}  // namespace

void CellRange::present() const {
    if (areas_.empty()) {
        throw automation::AutomationError(automation::hresult::object_required, "Range", "the cells have been deleted");
    }
}

void CellRange::follow(HostSession& session, const Sheet& sheet, const formula::Edit& edit) {
    const HeldRange& ring = session.held_ranges;
    for (HeldRange* held = ring.next(); held != &ring; held = held->next()) {
        auto& range = static_cast<CellRange&>(*held);
        if (range.sheet_ == &sheet) range.areas_ = formula::adjust_areas(range.areas_, edit);
    }
}

std::vector<StyleId> CellRange::formats() const {
    std::vector<StyleId> distinct = sheet_->styles_in(first());
    for (std::size_t i = 1; i < areas_.size(); ++i) {
        for (const StyleId id : sheet_->styles_in(areas_[i])) {
            if (std::ranges::find(distinct, id) == distinct.end()) distinct.push_back(id);
        }
    }
    return distinct;
}

void CellRange::restyle(std::string_view member, const std::function<StyleId(StyleId)>& map) const {
    require_format_allowed(member);
    if (styles().formats.size() >= most_formats) refuse(member, "the workbook has too many different cell formats");
    for (const Area& area : areas()) sheet_->restyle(area, map);
    changed();
}

void CellRange::require_format_allowed(std::string_view member) const {
    if (!sheet_->protection().format_cells) require_content_allowed(member);
}

void CellRange::require_content_allowed(std::string_view member) const {
    if (!sheet_->protection().on) return;
    for (const StyleId id : formats()) {
        if (styles().formats[id].protection.locked) {
            refuse(member, "a cell is locked and the sheet '" + sheet_->name() + "' is protected");
        }
    }
}

void CellRange::content_changed() const {
    changed();
    if (!session_->heard()) return;
    session_->raise("SheetChange", {sheet_object(*session_, *sheet_), std::make_shared<RangeObject>(*this)});
}

}  // namespace kestrune::host
