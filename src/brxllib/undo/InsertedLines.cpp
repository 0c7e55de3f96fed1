#include "brxllib/undo/InsertedLines.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string>
#include <utility>

#include "automation/AutomationError.h"
#include "automation/ResumeNext.h"
#include "brxllib/autocolor/ClassReader.h"
#include "brxllib/undo/Lines.h"
#include "excel/Constants.h"

namespace kestrune::brxllib::undo {

using automation::AutomationError;
using automation::Value;

InsertedLines::InsertedLines(excel::Application application, const excel::Range& before, bool rows,
                             std::size_t most_bytes, const automation::Trace& trace)
    : application_(std::move(application)),
      rows_(rows),
      most_bytes_(most_bytes),
      trace_(trace),
      areas_(lines_of(before, rows)),
      origin_(std::make_shared<HeldCells>(application_, before)) {
    // A range of our own: that of a selection may be the selection itself.
    origin_->hold(areas_);
    std::int32_t in_front = 0;
    for (const formula::Area& area : areas_) {
        places_.push_back(moved(area, in_front, rows));
        in_front += count_of(area, rows);
    }
    end_ = rows ? formula::Area{formula::max_rows - in_front + 1, 1, formula::max_rows, formula::max_columns}
                : formula::Area{1, formula::max_columns - in_front + 1, formula::max_rows, formula::max_columns};
}

std::unique_ptr<InsertedLines> InsertedLines::take(const excel::Application& application, const excel::Range& before,
                                                   bool rows, std::size_t most_bytes, const automation::Trace& trace) {
    std::unique_ptr<InsertedLines> change(new InsertedLines(application, before, rows, most_bytes, trace));
    return change->record_end() ? std::move(change) : nullptr;
}

Aspects InsertedLines::looks() const { return {Aspect::Formats, rows_ ? Aspect::Rows : Aspect::Columns}; }

bool InsertedLines::record_end() {
    const excel::Worksheet& sheet = origin_->sheet();
    const excel::Range end = range_of(application_, sheet, std::span(&end_, 1));
    end_state_ = Snapshot::take(application_, end, looks(), most_bytes_, trace_);
    lying_.reset();
    lying_after_.reset();
    if (!end_state_) return false;
    // A rule that lies on both sides of the lines does not read as before once they are gone again.
    Aspects lying;
    if (sheet.Cells().FormatConditions().Count() > 0) lying |= Aspect::Conditions;
    if (!(end.MergeCells() == Value(false))) lying |= Aspect::Merges;
    if (lying.empty()) return true;
    lying_ = Snapshot::take(application_, sheet.Cells(), lying, most_bytes_, trace_);
    return lying_.has_value();
}

bool InsertedLines::finish() {
    if (origin_->areas() == areas_) return false;
    inserted_ = std::make_shared<HeldCells>(application_, origin_->sheet().Cells());
    settle();
    return true;
}

void InsertedLines::settle() {
    inserted_->hold(places_);
    // Tables fill new rows of their own accord; whatever else the step entered is on record beside this.
    contents_ = contents();
    if (lying_) lying_after_ = lying_->again(most_bytes_, trace_);
}

std::vector<Value> InsertedLines::contents() const {
    std::vector<Value> contents;
    const excel::Range used = inserted_->sheet().UsedRange();
    const excel::Areas areas = inserted_->range().Areas();
    for (std::int32_t i = 1; i <= areas.Count(); ++i) {
        const excel::Range shown = application_.Intersect(used, areas.Item(i));
        contents.push_back(shown ? shown.Formula() : Value());
        // Blank cells of a used range that grew or shrank elsewhere are no content.
        const automation::Array* block = contents.back().array();
        const bool blank =
            block ? std::ranges::all_of(block->elements(), [](const Value& cell) { return cell == Value(""); })
                  : contents.back() == Value("");
        if (blank) contents.back() = Value();
    }
    return contents;
}

std::optional<Obstacle> InsertedLines::obstacle(Direction direction) const {
    if (auto sheet = obstacle_of_sheet(origin_->sheet())) return sheet;
    if (direction == Direction::Redo) {
        if (origin_->areas() != areas_) return lines_moved(origin_->sheet());
        return {};
    }
    if (inserted_->areas() != places_) return lines_moved(origin_->sheet());
    if (!(contents() == contents_)) {
        return Obstacle{"something has been entered in the " + std::string(rows_ ? "rows" : "columns") + " since",
                        false};
    }
    if (lying_ && !(lying_after_ && lying_after_ == lying_after_->again(most_bytes_, trace_)))
        return Obstacle{"merged areas or conditional formats have been changed since", true};
    return {};
}

void InsertedLines::undo() {
    looks_ = Snapshot::take(application_, inserted_->range(), looks(), most_bytes_, trace_);
    inserted_->range().Delete(rows_ ? excel::xlUp : excel::xlToLeft);
    // At the end of the sheet they had pushed it off.
    if (origin_->areas() != areas_) origin_->hold(areas_);
    end_state_->held()->hold({end_});
    std::vector<std::string> refusals = end_state_->restore(trace_);
    if (lying_) std::ranges::move(lying_->restore(trace_), std::back_inserter(refusals));
    if (refusals.empty()) return;
    const automation::ResumeNext attempt(trace_);
    attempt([&] {
        origin_->range().Insert();
        settle();
    });
    throw AutomationError(automation::hresult::excel_error, "iUndoRedo", refusals.front());
}

void InsertedLines::redo() {
    // Others may have changed what is at the sheet's end since.
    if (!record_end())
        throw AutomationError(automation::hresult::excel_error, "iUndoRedo", "it changes more than undo can hold");
    origin_->range().Insert();
    // Excel formats what comes in like its neighbours, by which of two cells has the line that both share: that may be
    // the other one by now.
    if (looks_) {
        looks_->held()->hold(places_);
        looks_->restore(trace_);
    }
    settle();
}

void InsertedLines::visit_cells(const VisitHeldCells& visit) const {
    visit(origin_);
    if (inserted_) visit(inserted_);
    visit(end_state_->held());
    if (lying_) visit(lying_->held());
}

excel::Range InsertedLines::shown(Direction direction) const {
    return (direction == Direction::Undo ? origin_ : inserted_)->range();
}

std::size_t InsertedLines::bytes() const {
    std::size_t sum = sizeof(InsertedLines) + 2 * sizeof(HeldCells);
    sum += (areas_.size() + places_.size()) * sizeof(formula::Area);
    for (const Value& content : contents_) {
        const automation::Array* block = content.array();
        sum += sizeof(Value) * (block ? block->elements().size() : 1);
    }
    for (const auto* snapshot : {&end_state_, &lying_, &lying_after_, &looks_})
        if (*snapshot) sum += (*snapshot)->bytes();
    return sum;
}

}  // namespace kestrune::brxllib::undo
