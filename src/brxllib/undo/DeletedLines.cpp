#include "brxllib/undo/DeletedLines.h"

#include <utility>

#include "automation/AutomationError.h"
#include "automation/ResumeNext.h"
#include "brxllib/undo/Lines.h"
#include "excel/Constants.h"
#include "excel/Workbook.h"
#include "formula/A1.h"
#include "formula/Edit.h"

namespace kestrune::brxllib::undo {

using automation::AutomationError;
using automation::Value;
using formula::Area;
using formula::Edit;

namespace {

// The deletions from the last area to the first, or their insertion from the first to the last.
std::vector<Edit> edits_of(const std::vector<Area>& areas, bool rows, bool deletes, const std::string& sheet) {
    std::vector<Edit> edits;
    for (const Area& area : areas) {
        Edit edit;
        edit.kind = rows ? (deletes ? Edit::Kind::delete_rows : Edit::Kind::insert_rows)
                         : (deletes ? Edit::Kind::delete_columns : Edit::Kind::insert_columns);
        edit.sheet = sheet;
        edit.first = rows ? area.first_row : area.first_column;
        edit.count = rows ? area.rows() : area.columns();
        edits.insert(deletes ? edits.begin() : edits.end(), std::move(edit));
    }
    return edits;
}

std::string adjusted(std::string formula, const std::string& sheet, const std::vector<Edit>& edits) {
    for (const Edit& edit : edits) formula = formula::adjust_for_edit(formula, sheet, edit);
    return formula;
}

void set_formula(const excel::Range& cell, const std::string& formula) {
    if (cell.HasArray() == Value(true))
        cell.CurrentArray().FormulaArray(formula);
    else
        cell.Formula(formula);
}

bool lies_in(const std::vector<Area>& areas, formula::Position at) {
    for (const Area& area : areas)
        if (area.contains(at)) return true;
    return false;
}

}  // namespace

DeletedLines::DeletedLines(const excel::Application& application, const excel::Range& lines, bool rows,
                           std::size_t most_bytes, const automation::Trace& trace)
    : application_(application),
      sheet_(lines.Worksheet()),
      rows_(rows),
      most_bytes_(most_bytes),
      trace_(trace),
      areas_(lines_of(lines)),
      lines_(held_lines(sheet_, areas_, rows)) {
    areas_ = lines_of(lines_);
    std::vector<Area> behind = areas_;
    std::vector<Area> moved;
    std::int32_t gone = 0;
    for (Area& area : behind) {
        const std::int32_t next = (rows ? area.last_row : area.last_column) + 1;
        gone += rows ? area.rows() : area.columns();
        if (rows) {
            area.first_row = area.last_row = next;
            moved.push_back({next - gone, 1, next - gone, formula::max_columns});
        } else {
            area.first_column = area.last_column = next;
            moved.push_back({1, next - gone, formula::max_rows, next - gone});
        }
    }
    behind_ = held_lines(sheet_, behind, rows);
    behind_after_ = held_lines(sheet_, moved, rows).Address();
}

std::unique_ptr<DeletedLines> DeletedLines::take(const excel::Application& application, const excel::Range& lines,
                                                 bool rows, std::size_t most_bytes, const automation::Trace& trace) {
    std::unique_ptr<DeletedLines> change(new DeletedLines(application, lines, rows, most_bytes, trace));
    const Aspects held{Aspect::Contents, Aspect::Formats, rows ? Aspect::Rows : Aspect::Columns};
    change->cells_ = Snapshot::take(application, change->lines_, held, most_bytes, trace);
    change->lying_ = Snapshot::take(application, change->sheet_.Cells(),
                                    {Aspect::Conditions, Aspect::Merges, Aspect::Names}, most_bytes, trace);
    if (!change->cells_ || !change->lying_) return nullptr;
    for (const auto* snapshot : {&*change->cells_, &*change->lying_})
        for (const std::string& line : snapshot->irreplaceable()) change->irreplaceable_.push_back(line);
    if (change->lines_.Hyperlinks().Count() > 0) change->irreplaceable_.push_back("its cells hold hyperlinks");

    const excel::Workbook own = change->sheet_.Parent();
    const std::string own_name = own.Name();
    const excel::Workbooks workbooks = application.Workbooks();
    for (std::int32_t i = 1; i <= workbooks.Count(); ++i) {
        const excel::Workbook workbook = workbooks.Item(i);
        change->record_elsewhere(workbook, workbook.Name() == own_name ? std::string() : own_name);
    }
    if (change->bytes() > most_bytes) return nullptr;
    return change;
}

// book: how formulas of that workbook call the one that loses lines; empty for its own.
void DeletedLines::record_elsewhere(const excel::Workbook& workbook, const std::string& book) {
    std::vector<Edit> out = edits_of(areas_, rows_, true, sheet_.Name());
    std::vector<Edit> in = edits_of(areas_, rows_, false, sheet_.Name());
    if (!book.empty()) {
        for (Edit& edit : out) edit.books = {book};
        for (Edit& edit : in) edit.books = {book};
    }
    const std::string edited = sheet_.Name();
    const excel::Worksheets sheets = workbook.Worksheets();
    for (std::int32_t i = 1; i <= sheets.Count(); ++i) {
        const excel::Worksheet sheet = sheets.Item(i);
        const std::string name = sheet.Name();
        const excel::Range used = sheet.UsedRange();
        const std::int32_t row = used.Row();
        const std::int32_t column = used.Column();
        const Value formulas = used.Formula();
        const auto look = [&](formula::Position at, const Value& cell) {
            const auto* text = cell.if_is<std::string>();
            if (!text || !text->starts_with('=')) return;
            if (book.empty() && name == edited && lies_in(areas_, at)) return;
            std::string after = adjusted(*text, name, out);
            if (adjusted(after, name, in) == *text) return;
            const std::string address = formula::cell_text(at);
            elsewhere_.push_back({sheet, address, sheet.Range(address), *text, std::move(after)});
        };
        if (const automation::Array* block = formulas.array()) {
            for (std::int32_t r = 1; r <= block->bound(0).count; ++r)
                for (std::int32_t c = 1; c <= block->bound(1).count; ++c)
                    look({row + r - 1, column + c - 1}, block->at(r, c));
        } else {
            look({row, column}, formulas);
        }
    }
}

bool DeletedLines::finish() {
    try {
        return behind_.Address() == behind_after_;
    } catch (const AutomationError&) {
        return false;
    }
}

std::optional<Obstacle> DeletedLines::obstacle(Direction direction) const {
    if (auto sheet = obstacle_of_sheet(direction == Direction::Undo ? behind_ : lines_)) return sheet;
    if (direction == Direction::Redo) {
        if (lines_of(lines_) != areas_) return Obstacle{lines_moved(lines_), true};
        if (!(cells_ == cells_->again(most_bytes_, trace_))) return Obstacle{"its cells have been changed since", true};
        return {};
    }
    if (behind_.Address() != behind_after_) return Obstacle{lines_moved(behind_), true};
    for (const Elsewhere& formula : elsewhere_) {
        if (formula.cell.Formula() == Value(formula.after)) continue;
        return Obstacle{"the formula in " + formula.sheet.Name() + "!" + formula.address + " has been changed since",
                        true};
    }
    return {};
}

void DeletedLines::undo() {
    for (const Area& area : areas_) sheet_.Range(formula::area_text(area)).Insert();
    lines_ = held_lines(sheet_, areas_, rows_);
    std::vector<std::string> refusals = cells_->restore(trace_);
    const automation::ResumeNext attempt(trace_);
    for (const Elsewhere& formula : elsewhere_) {
        if (!attempt([&] { set_formula(formula.cell, formula.before); }))
            refusals.push_back(formula.sheet.Name() + "!" + formula.address + " is refused");
    }
    for (std::string& line : lying_->restore(trace_)) refusals.push_back(std::move(line));
    if (!refusals.empty()) {
        attempt([&] { redo(); });
        throw AutomationError(automation::hresult::excel_error, "iUndoRedo", refusals.front());
    }
    if (auto again = Snapshot::take(application_, lines_, cells_->aspects(), most_bytes_, trace_)) cells_ = again;
}

void DeletedLines::redo() { lines_.Delete(rows_ ? excel::xlUp : excel::xlToLeft); }

std::size_t DeletedLines::bytes() const {
    std::size_t sum = sizeof(DeletedLines) + (cells_ ? cells_->bytes() : 0) + (lying_ ? lying_->bytes() : 0);
    for (const Elsewhere& formula : elsewhere_)
        sum += sizeof(Elsewhere) + formula.before.size() + formula.after.size() + formula.address.size();
    return sum;
}

}  // namespace kestrune::brxllib::undo
