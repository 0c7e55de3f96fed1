#include "brxllib/undo/DeletedLines.h"

#include <algorithm>
#include <utility>

#include "automation/AutomationError.h"
#include "automation/ResumeNext.h"
#include "brxllib/BlockAnswer.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/undo/Lines.h"
#include "brxllib/undo/LyingThings.h"
#include "excel/Constants.h"
#include "formula/A1.h"
#include "formula/SheetName.h"

namespace kestrune::brxllib::undo {

using automation::AutomationError;
using automation::Value;
using formula::Area;
using formula::Edit;

namespace {

std::string adjusted(std::string formula, const std::string& sheet, const std::vector<Edit>& edits) {
    for (const Edit& edit : edits) formula = formula::adjust_for_edit(formula, sheet, edit);
    return formula;
}

formula::Position adjusted(formula::Position at, const std::vector<Edit>& edits) {
    for (const Edit& edit : edits) at = formula::adjust_position(at, edit).value_or(at);
    return at;
}

void set_formula(const excel::Range& cell, const std::string& formula) {
    if (cell.HasArray() == Value(true))
        cell.CurrentArray().FormulaArray(formula);
    else
        cell.Formula(formula);
}

excel::Range cell_of(const excel::Worksheet& sheet, formula::Position at) {
    return sheet.Range(formula::cell_text(at));
}

bool lies_in(const std::vector<Area>& areas, formula::Position at) {
    return std::ranges::any_of(areas, [&](const Area& area) { return area.contains(at); });
}

}  // namespace

DeletedLines::DeletedLines(excel::Application application, const excel::Range& lines, bool rows, std::size_t most_bytes,
                           const automation::Trace& trace)
    : application_(std::move(application)),
      sheet_(lines.Worksheet()),
      rows_(rows),
      most_bytes_(most_bytes),
      trace_(trace),
      areas_(joined(lines_of(lines, rows), rows)),
      whole_sheet_(areas_.front() == Area::sheet()) {}

std::unique_ptr<DeletedLines> DeletedLines::take(const excel::Application& application, const excel::Range& lines,
                                                 bool rows, std::size_t most_bytes, const automation::Trace& trace) {
    std::unique_ptr<DeletedLines> change(new DeletedLines(application, lines, rows, most_bytes, trace));
    return change->record() ? std::move(change) : nullptr;
}

HeldCellsRef DeletedLines::held(const excel::Worksheet& sheet, const std::vector<Area>& areas) const {
    auto cells = std::make_shared<HeldCells>(application_, sheet.Cells());
    cells->hold(areas);
    return cells;
}

bool DeletedLines::at_end(const Area& area) const {
    return last_of(area, rows_) == (rows_ ? formula::max_rows : formula::max_columns);
}

bool DeletedLines::record() {
    Aspects held_by_lines{Aspect::Contents, Aspect::Formats, rows_ ? Aspect::Rows : Aspect::Columns};
    if (whole_sheet_) held_by_lines |= {Aspect::Rows, Aspect::Columns};
    cells_ = Snapshot::take(application_, held(sheet_, areas_)->range(), held_by_lines, most_bytes_, trace_);
    lying_ = Snapshot::take(application_, sheet_.Cells(), {Aspect::Conditions, Aspect::Merges, Aspect::Names},
                            most_bytes_, trace_);
    lying_after_.reset();
    elsewhere_.clear();
    if (!cells_ || !lying_) return false;

    // What is next to the lines shows that they are gone, and where: what comes behind, at the end what is in front.
    std::vector<Area> beside;
    beside_gone_.clear();
    std::int32_t gone = 0;
    for (const Area& area : areas_) {
        const std::int32_t count = count_of(area, rows_);
        const std::int32_t place = at_end(area) ? first_of(area, rows_) - 1 : last_of(area, rows_) + 1;
        gone += at_end(area) ? 0 : count;
        if (place < 1) continue;
        const Area first_line = rows_ ? Area{1, 1, 1, formula::max_columns} : Area{1, 1, formula::max_rows, 1};
        beside.push_back(moved(first_line, place - 1, rows_));
        beside_gone_.push_back(moved(first_line, place - 1 - gone, rows_));
    }
    beside_ = {whole_sheet_ ? nullptr : held(sheet_, beside)};
    Area used = areas_of(sheet_.UsedRange()).front();
    used = {1, 1, std::min(used.last_row + 1, formula::max_rows), std::min(used.last_column + 1, formula::max_columns)};
    used_ = {held(sheet_, {used})};

    const excel::Workbook own = sheet_.Parent();
    const std::string own_name = own.Name();
    const excel::Workbooks workbooks = application_.Workbooks();
    for (std::int32_t i = 1; i <= workbooks.Count(); ++i) {
        const excel::Workbook workbook = workbooks.Item(i);
        record_elsewhere(workbook, workbook.Name() == own_name ? std::string() : own_name);
    }
    return bytes() <= most_bytes_;
}

// book: how formulas of that workbook call the one that loses lines; empty for its own.
void DeletedLines::record_elsewhere(const excel::Workbook& workbook, const std::string& book) {
    const std::string edited = sheet_.Name();
    std::vector<Edit> out = edits_of(areas_, rows_, true, edited);
    std::vector<Edit> in = edits_of(areas_, rows_, false, edited);
    if (!book.empty()) {
        for (Edit& edit : out) edit.books = {book};
        for (Edit& edit : in) edit.books = {book};
    }
    const excel::Worksheets sheets = workbook.Worksheets();
    for (std::int32_t i = 1; i <= sheets.Count(); ++i) {
        const excel::Worksheet sheet = sheets.Item(i);
        const std::string name = sheet.Name();
        const bool own = book.empty() && name == edited;
        const excel::Range used = sheet.UsedRange();
        const Area area = areas_of(used).front();
        const BlockAnswer formulas(used.Formula(), area);
        std::optional<BlockAnswer> values;
        // A text may look like a formula.
        const auto is_formula = [&](formula::Position at, std::size_t place) {
            if (!values) values.emplace(used.Value2(), area);
            return !((*values)[place] == formulas[place]) || cell_of(sheet, at).HasFormula() == Value(true);
        };
        Elsewhere elsewhere;
        const auto look = [&](formula::Position at, std::size_t place) {
            const auto* text = formulas[place].if_is<std::string>();
            if (!text || !text->starts_with('=') || (own && lies_in(areas_, at))) return;
            std::string after = adjusted(*text, name, out);
            if (adjusted(after, name, in) == *text || !is_formula(at, place)) return;
            elsewhere.formulas.push_back({at, own ? adjusted(at, out) : at, *text, std::move(after)});
        };
        std::size_t place = 0;
        for (std::int32_t row = area.first_row; row <= area.last_row; ++row)
            for (std::int32_t column = area.first_column; column <= area.last_column; ++column)
                look({row, column}, place++);
        if (elsewhere.formulas.empty()) continue;
        Area around{1, 1, 1, 1};
        for (const Formula& formula : elsewhere.formulas) {
            around.last_row = std::max(around.last_row, formula.at.row);
            around.last_column = std::max(around.last_column, formula.at.column);
        }
        elsewhere.around = {held(sheet, {around})};
        elsewhere_.push_back(std::move(elsewhere));
    }
}

std::vector<std::string> DeletedLines::irreplaceable() const {
    std::vector<std::string> clauses = cells_->irreplaceable();
    // Of the sheet's conditional formats only those go that lie nowhere else.
    if (const auto rules =
            Snapshot::take(application_, cells_->held()->range(), Aspect::Conditions, most_bytes_, trace_))
        for (const std::string& clause : rules->irreplaceable()) clauses.push_back(clause);
    for (std::string& clause : things_lost_with(cells_->held()->range(), areas_, rows_, trace_))
        clauses.push_back(std::move(clause));
    return clauses;
}

std::vector<DeletedLines::Mark*> DeletedLines::marks() {
    std::vector<Mark*> marks{&used_};
    if (beside_.cells) marks.push_back(&beside_);
    for (Elsewhere& elsewhere : elsewhere_) marks.push_back(&elsewhere.around);
    return marks;
}

bool DeletedLines::finish() {
    lying_after_ = lying_->again(most_bytes_, trace_);
    const bool gone = whole_sheet_ ? lying_ != lying_after_ || cells_ != cells_->again(most_bytes_, trace_)
                                   : beside_.cells->areas() == beside_gone_;
    if (!gone) return false;
    for (Mark* mark : marks()) mark->after = mark->cells->areas();
    // As Excel writes them now.
    const automation::ResumeNext attempt(trace_);
    for (Elsewhere& elsewhere : elsewhere_) {
        const excel::Worksheet& sheet = elsewhere.around.cells->sheet();
        for (Formula& formula : elsewhere.formulas)
            attempt([&] { formula.after = automation::to_text(cell_of(sheet, formula.at_after).Formula()); });
    }
    return true;
}

std::optional<Obstacle> DeletedLines::obstacle(Direction direction) const {
    if (auto sheet = obstacle_of_sheet(sheet_)) return sheet;
    if (direction == Direction::Redo) {
        if (cells_->held()->areas() != areas_) return lines_moved(sheet_);
        if (!(cells_ == cells_->again(most_bytes_, trace_))) return Obstacle{"its cells have been changed since", true};
        if (const auto clauses = irreplaceable(); !clauses.empty()) return Obstacle{clauses.front(), false};
        return {};
    }
    for (const Mark* mark : {&beside_, &used_})
        if (mark->cells && mark->cells->areas() != mark->after) return lines_moved(sheet_);
    if (const auto why = changed_elsewhere()) return Obstacle{*why, true};
    return {};
}

std::optional<std::string> DeletedLines::changed_elsewhere() const {
    if (!lying_after_) return "more was changed than can be remembered";
    if (!(lying_after_ == lying_after_->again(most_bytes_, trace_)))
        return "merged areas, conditional formats or names have been changed since";
    for (const Elsewhere& elsewhere : elsewhere_) {
        const excel::Worksheet& sheet = elsewhere.around.cells->sheet();
        if (elsewhere.around.cells->areas() != elsewhere.around.after) return lines_moved(sheet).why;
        for (const Formula& formula : elsewhere.formulas) {
            if (cell_of(sheet, formula.at_after).Formula() == Value(formula.after)) continue;
            return "the formula in " + formula::quoted_sheet(sheet.Name()) + "!" +
                   formula::cell_text(formula.at_after) + " has been changed since";
        }
    }
    return {};
}

void DeletedLines::undo() {
    // At the sheet's end blank ones have come in already.
    for (const Area& area : areas_)
        if (!at_end(area)) sheet_.Range(formula::area_text(area)).Insert();
    cells_->held()->hold(areas_);
    std::vector<std::string> refusals = cells_->restore(trace_);
    const automation::ResumeNext attempt(trace_);
    for (const Elsewhere& elsewhere : elsewhere_) {
        const excel::Worksheet& sheet = elsewhere.around.cells->sheet();
        for (const Formula& formula : elsewhere.formulas) {
            if (attempt([&] { set_formula(cell_of(sheet, formula.at), formula.before); })) continue;
            refusals.push_back(formula::quoted_sheet(sheet.Name()) + "!" + formula::cell_text(formula.at) +
                               " is refused");
        }
    }
    for (std::string& line : lying_->restore(trace_)) refusals.push_back(std::move(line));
    if (!refusals.empty()) {
        attempt([&] { cells_->held()->range().Delete(rows_ ? excel::xlUp : excel::xlToLeft); });
        throw AutomationError(automation::hresult::excel_error, "iUndoRedo", refusals.front());
    }
    if (auto again = cells_->again(most_bytes_, trace_)) cells_ = again;
}

void DeletedLines::redo() {
    // Others may have changed what is around the lines since they are back.
    if (!record()) {
        throw AutomationError(automation::hresult::excel_error, "iUndoRedo", "it changes more than undo can hold");
    }
    cells_->held()->range().Delete(rows_ ? excel::xlUp : excel::xlToLeft);
    finish();
}

void DeletedLines::visit_cells(const VisitHeldCells& visit) const {
    for (const auto* snapshot : {&cells_, &lying_})
        if (*snapshot) visit((*snapshot)->held());
    for (const Mark* mark : {&beside_, &used_})
        if (mark->cells) visit(mark->cells);
    for (const Elsewhere& elsewhere : elsewhere_) visit(elsewhere.around.cells);
}

excel::Range DeletedLines::shown(Direction direction) const {
    if (direction == Direction::Undo) return cells_->held()->range();
    // What stands there now.
    return held(sheet_, {areas_.front()})->range();
}

std::size_t DeletedLines::bytes() const {
    std::size_t sum = sizeof(DeletedLines);
    for (const auto* snapshot : {&cells_, &lying_, &lying_after_})
        if (*snapshot) sum += (*snapshot)->bytes();
    for (const Elsewhere& elsewhere : elsewhere_) {
        sum += sizeof(Elsewhere);
        for (const Formula& formula : elsewhere.formulas)
            sum += sizeof(Formula) + formula.before.size() + formula.after.size();
    }
    return sum;
}

}  // namespace kestrune::brxllib::undo
