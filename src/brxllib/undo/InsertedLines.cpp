#include "brxllib/undo/InsertedLines.h"

#include <utility>

#include "brxllib/undo/Lines.h"
#include "excel/Constants.h"
#include "excel/Worksheet.h"

namespace kestrune::brxllib::undo {

using automation::Value;

InsertedLines::InsertedLines(excel::Application application, excel::Range before, bool rows)
    : application_(std::move(application)),
      origin_(held_lines(before.Worksheet(), lines_of(before), rows)),
      rows_(rows),
      address_(origin_.Address()) {}

bool InsertedLines::finish() {
    if (origin_.Address() == address_) return false;
    find_inserted();
    contents_ = contents();
    return true;
}

void InsertedLines::find_inserted() {
    std::vector<formula::Area> areas = lines_of(origin_);
    for (formula::Area& area : areas) {
        if (rows_) {
            const std::int32_t count = area.rows();
            area.first_row -= count;
            area.last_row -= count;
        } else {
            const std::int32_t count = area.columns();
            area.first_column -= count;
            area.last_column -= count;
        }
    }
    inserted_ = held_lines(origin_.Worksheet(), areas, rows_);
    inserted_address_ = inserted_.Address();
}

std::vector<Value> InsertedLines::contents() const {
    std::vector<Value> contents;
    const excel::Range used = inserted_.Worksheet().UsedRange();
    const excel::Areas areas = inserted_.Areas();
    for (std::int32_t i = 1; i <= areas.Count(); ++i) {
        const excel::Range shown = application_.Intersect(used, areas.Item(i));
        contents.push_back(shown ? shown.Formula() : Value());
        // Blank cells of a used range that grew or shrank elsewhere are no content.
        if (const automation::Array* block = contents.back().array()) {
            bool blank = true;
            for (const Value& cell : block->elements()) blank = blank && cell == Value("");
            if (blank) contents.back() = Value();
        } else if (contents.back() == Value("")) {
            contents.back() = Value();
        }
    }
    return contents;
}

std::optional<Obstacle> InsertedLines::obstacle(Direction direction) const {
    if (auto sheet = obstacle_of_sheet(direction == Direction::Undo ? inserted_ : origin_)) return sheet;
    const std::string_view what = rows_ ? "rows" : "columns";
    if (direction == Direction::Redo) {
        if (origin_.Address() != address_) return Obstacle{lines_moved(origin_), true};
        return {};
    }
    if (inserted_.Address() != inserted_address_) return Obstacle{lines_moved(inserted_), true};
    if (!(contents() == contents_))
        return Obstacle{"something has been entered in the " + std::string(what) + " since", false};
    return {};
}

void InsertedLines::undo() {
    inserted_.Delete(rows_ ? excel::xlUp : excel::xlToLeft);
    inserted_ = {};
}

void InsertedLines::redo() {
    origin_.Insert();
    find_inserted();
    // Tables fill new rows of their own accord; whatever else the step entered is on record beside this.
    contents_ = contents();
}

std::size_t InsertedLines::bytes() const {
    std::size_t sum = sizeof(InsertedLines) + address_.size() + inserted_address_.size();
    for (const Value& content : contents_) {
        const automation::Array* block = content.array();
        sum += sizeof(Value) * (block ? block->elements().size() : 1);
    }
    return sum;
}

}  // namespace kestrune::brxllib::undo
