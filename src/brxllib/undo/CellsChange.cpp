#include "brxllib/undo/CellsChange.h"

#include <ranges>

#include "automation/AutomationError.h"
#include "excel/Worksheet.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib::undo {

using automation::AutomationError;

namespace {

// Nothing when the sheet, or its workbook, is no more.
std::optional<std::string> sheet_name_of(const Snapshot& cells) {
    try {
        return cells.held()->sheet().Name();
    } catch (const AutomationError&) {
        return {};
    }
}

std::string refusal(const Snapshot& cells, const std::string& line) {
    const excel::Worksheet& sheet = cells.held()->sheet();
    return sheet.ProtectContents() ? "the worksheet " + formula::quoted_sheet(sheet.Name()) + " is protected" : line;
}

}  // namespace

bool CellsChange::finish() {
    bool changed = false;
    for (Cells& cells : cells_) {
        cells.after = cells.before.again(most_bytes_, trace_);
        cells.present = cells.after;
        changed |= !(cells.after == cells.before);
    }
    // Cells that are as they were may have changed in between, and others on record in that state.
    return changed;
}

std::optional<Obstacle> CellsChange::obstacle(Direction) const {
    for (const Cells& cells : cells_) {
        if (std::string why = obstacle_of(cells); !why.empty()) return Obstacle{std::move(why), true};
    }
    return {};
}

std::string CellsChange::obstacle_of(const Cells& cells) const {
    if (!cells.present) return "more was changed than can be remembered";
    const auto sheet = sheet_name_of(cells.before);
    if (!sheet) return "its worksheet or workbook is no longer there";
    if (!cells.before.in_place()) {
        return "rows or columns have been inserted or deleted on " + formula::quoted_sheet(*sheet);
    }
    return cells.present == cells.present->again(most_bytes_, trace_) ? "" : "its cells have been changed since";
}

void CellsChange::undo() {
    give_back(cells_ | std::views::reverse, [](const Cells& cells) -> const Snapshot& { return cells.before; });
}

void CellsChange::redo() {
    give_back(cells_, [](const Cells& cells) -> const Snapshot& { return *cells.after; });
}

template <class Order>
void CellsChange::give_back(const Order& order, Wanted wanted) {
    for (const Cells& cells : order) {
        const std::vector<std::string> refusals = wanted(cells).restore(trace_);
        if (refusals.empty()) continue;
        std::string why = refusal(cells.before, refusals.front());
        for (const Cells& touched : cells_) {
            const std::vector<std::string> lost = touched.present->restore(trace_);
            if (lost.empty()) continue;
            why += "; not all of it could be put back: " + lost.front();
            break;
        }
        throw AutomationError(automation::hresult::excel_error, "iUndoRedo", why);
    }
    for (Cells& cells : cells_) {
        cells.present = cells.before.again(most_bytes_, trace_);
        if (cells.present == wanted(cells)) cells.present = wanted(cells);
    }
}

void CellsChange::visit_cells(const VisitHeldCells& visit) const {
    for (const Cells& cells : cells_) visit(cells.before.held());
}

std::size_t CellsChange::bytes() const {
    std::size_t sum = sizeof(CellsChange);
    for (const Cells& cells : cells_) {
        sum += sizeof cells + cells.before.bytes();
        if (cells.after) sum += cells.after->bytes();  // present is the same record as one of the two
    }
    return sum;
}

}  // namespace kestrune::brxllib::undo
