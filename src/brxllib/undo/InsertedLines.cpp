#include "brxllib/undo/InsertedLines.h"

#include <algorithm>
#include <string>
#include <utility>

#include "brxllib/undo/Lines.h"
#include "excel/Constants.h"

namespace kestrune::brxllib::undo {

using automation::Value;

InsertedLines::InsertedLines(excel::Application application, const excel::Range& before, bool rows)
    : application_(std::move(application)),
      rows_(rows),
      areas_(lines_of(before, rows)),
      origin_(std::make_shared<HeldCells>(application_, before)) {
    // A range of our own: that of a selection may be the selection itself.
    origin_->hold(areas_);
    std::int32_t in_front = 0;
    for (const formula::Area& area : areas_) {
        places_.push_back(moved(area, in_front, rows));
        in_front += count_of(area, rows);
    }
}

bool InsertedLines::finish() {
    if (origin_->areas() == areas_) return false;
    inserted_ = std::make_shared<HeldCells>(application_, origin_->sheet().Cells());
    inserted_->hold(places_);
    contents_ = contents();
    return true;
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
    return {};
}

void InsertedLines::undo() {
    inserted_->range().Delete(rows_ ? excel::xlUp : excel::xlToLeft);
    // At the end of the sheet they had pushed it off.
    if (origin_->areas() != areas_) origin_->hold(areas_);
}

void InsertedLines::redo() {
    origin_->range().Insert();
    inserted_->hold(places_);
    // Tables fill new rows of their own accord; whatever else the step entered is on record beside this.
    contents_ = contents();
}

void InsertedLines::visit_cells(const VisitHeldCells& visit) const {
    visit(origin_);
    if (inserted_) visit(inserted_);
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
    return sum;
}

}  // namespace kestrune::brxllib::undo
