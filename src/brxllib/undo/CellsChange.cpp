#include "brxllib/undo/CellsChange.h"

#include "automation/AutomationError.h"
#include "excel/Worksheet.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib::undo {

using automation::AutomationError;

namespace {

// Nothing when the sheet, or its workbook, is no more.
std::optional<std::string> sheet_name_of(const excel::Range& cells) {
    try {
        return cells.Worksheet().Name();
    } catch (const AutomationError&) {
        return {};
    }
}

}  // namespace

bool CellsChange::finish() {
    after_ = before_.again(most_bytes_, trace_);
    return !after_ || !(*after_ == before_);
}

std::optional<Obstacle> CellsChange::obstacle(Direction direction) const {
    if (!after_) return Obstacle{"more was changed than can be remembered", true};
    const auto sheet = sheet_name_of(before_.area());
    if (!sheet) return Obstacle{"its worksheet or workbook is no longer there", true};
    if (!before_.in_place()) {
        return Obstacle{"rows or columns have been inserted or deleted on " + formula::quoted_sheet(*sheet), true};
    }
    const Snapshot& expected = direction == Direction::Undo ? *after_ : before_;
    const auto present = expected.again(most_bytes_, trace_);
    if (!present || !(*present == expected)) return Obstacle{"its cells have been changed since", true};
    return {};
}

void CellsChange::give_back(const Snapshot& wanted, const Snapshot& present) const {
    const std::vector<std::string> refusals = wanted.restore(trace_);
    if (refusals.empty()) return;
    const std::vector<std::string> lost = present.restore(trace_);
    const excel::Worksheet sheet = wanted.area().Worksheet();
    std::string why = sheet.ProtectContents() ? "the worksheet " + formula::quoted_sheet(sheet.Name()) + " is protected"
                                              : refusals.front();
    if (!lost.empty()) why += "; not all of it could be put back: " + lost.front();
    throw AutomationError(automation::hresult::excel_error, "iUndoRedo", why);
}

std::size_t CellsChange::bytes() const { return before_.bytes() + (after_ ? after_->bytes() : 0); }

}  // namespace kestrune::brxllib::undo
