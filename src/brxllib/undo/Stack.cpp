#include "brxllib/undo/Stack.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "automation/AutomationError.h"

namespace kestrune::brxllib::undo {

using automation::AutomationError;

namespace {

std::size_t bytes_of(const std::deque<Step>& steps) {
    std::size_t sum = 0;
    for (const Step& step : steps) sum += step.bytes();
    return sum;
}

// Says while it lives that undo or redo is at work.
class Moving {
  public:
    explicit Moving(bool& flag) : flag_(flag) { flag_ = true; }
    ~Moving() { flag_ = false; }
    Moving(const Moving&) = delete;
    Moving& operator=(const Moving&) = delete;

  private:
    bool& flag_;
};

}  // namespace

// Rows and columns that come or go displace the cells of other changes; moved back, they are where they were.
void Stack::apply(Change& change, Direction direction) {
    const bool undoes = direction == Direction::Undo;
    DisplacedCells* const displaced = change.displaces(direction);
    DisplacedCells* const taken_back = change.displaces(undoes ? Direction::Redo : Direction::Undo);
    if (displaced) {
        *displaced = {};
        look_at_all_cells(*displaced);
    }
    if (taken_back) taken_back->keep_untouched();
    if (undoes) {
        change.undo();
    } else {
        change.redo();
    }
    if (displaced) displaced->settle();
    if (taken_back) taken_back->hold_again();
}

void Stack::look_at_all_cells(DisplacedCells& displaced) const {
    const auto look = [&](const HeldCellsRef& cells) { displaced.look(cells); };
    const auto look_at = [&](const Step& step) {
        if (step.cells) displaced.look(step.cells);
        for (const auto& change : step.changes) change->visit_cells(look);
    };
    for (const Step& step : done_) look_at(step);
    for (const Step& step : undone_) look_at(step);
    if (open_) look_at(*open_);
}

// Moves the changes from first to last; on an obstacle moves those back that have gone already.
template <class Iterator>
std::optional<Obstacle> Stack::move_all(Iterator first, Iterator last, Direction direction) {
    const Direction back = direction == Direction::Undo ? Direction::Redo : Direction::Undo;
    std::optional<Obstacle> obstacle;
    Iterator at = first;
    for (; at != last && !obstacle; ++at) {
        try {
            obstacle = (*at)->obstacle(direction);
            if (!obstacle) apply(**at, direction);
        } catch (const AutomationError& error) {
            obstacle = Obstacle{error.description(), error.code() == automation::hresult::workbook_gone ||
                                                         error.code() == automation::hresult::object_required};
        }
    }
    if (!obstacle) return {};
    --at;  // the one that did not go
    while (at != first) {
        --at;
        try {
            apply(**at, back);
        } catch (const AutomationError& error) {
            obstacle->why += "; not all of it could be put back: " + error.description();
            obstacle->lasting = true;
        }
    }
    return obstacle;
}

void Stack::begin(std::string name) {
    end_point();
    if (!open_) open_ = std::make_unique<Step>(Step{std::move(name)});
    ++depth_;
}

void Stack::begin_point(std::string name) {
    end_point();
    if (!open_) open_ = std::make_unique<Step>(Step{std::move(name)});
}

void Stack::add(std::unique_ptr<Change> change) {
    if (!open_) {
        throw AutomationError(automation::hresult::excel_error, "iUndoRedo.Record", "no step is open");
    }
    if (given_up_) return;
    finish_last();
    open_->changes.push_back(std::move(change));
    if (DisplacedCells* displaced = open_->changes.back()->displaces(Direction::Redo)) look_at_all_cells(*displaced);
}

void Stack::finish_last() {
    auto& changes = open_->changes;
    if (changes.empty()) return;
    bool changed = false;
    try {
        changed = changes.back()->finish();
    } catch (const AutomationError&) {
        // What cannot be looked at any more cannot be given back.
    }
    if (!changed) return changes.pop_back();
    if (DisplacedCells* displaced = changes.back()->displaces(Direction::Redo)) displaced->settle();
}

void Stack::give_up() {
    if (!open_) return;
    open_->changes.clear();
    given_up_ = true;
}

void Stack::end() {
    if (depth_ == 0) return end_point();
    if (--depth_ == 0) close();
}

void Stack::cancel() {
    if (depth_ > 0 && --depth_ > 0) return;
    open_.reset();
    given_up_ = false;
}

void Stack::end_point() {
    if (depth_ == 0 && open_) close();
}

void Stack::close() {
    finish_last();
    const std::unique_ptr<Step> step = std::move(open_);
    given_up_ = false;
    if (step->changes.empty()) return;
    undone_.clear();
    done_.push_back(std::move(*step));
    trim();
}

Outcome Stack::move(Direction direction) {
    using Kind = Outcome::Kind;
    if (is_running()) return {Kind::Refused, {}, "a command is running"};
    end_point();
    Steps& from = direction == Direction::Undo ? done_ : undone_;
    Steps& to = direction == Direction::Undo ? undone_ : done_;
    if (from.empty()) return {};

    if (moving_) return {Kind::Refused, {}, "undo is at work"};
    const Moving moving(moving_);
    auto& changes = from.back().changes;
    const auto obstacle = direction == Direction::Undo ? move_all(changes.rbegin(), changes.rend(), direction)
                                                       : move_all(changes.begin(), changes.end(), direction);
    if (obstacle) {
        Outcome outcome{obstacle->lasting ? Kind::Withdrawn : Kind::Refused, from.back().description(), obstacle->why};
        if (obstacle->lasting) from.pop_back();
        return outcome;
    }
    to.push_back(std::move(from.back()));
    from.pop_back();
    const Step& step = to.back();
    excel::Range shown;
    if (step.cells) shown = step.cells->range();
    for (const auto& change : step.changes) {
        if (!shown) shown = change->shown(direction);
    }
    return {Kind::Done, step.description(), {}, shown};
}

std::vector<std::string> Stack::descriptions(const Steps& steps) {
    std::vector<std::string> list;
    std::ranges::transform(steps.rbegin(), steps.rend(), std::back_inserter(list), &Step::description);
    return list;
}

std::vector<std::string> Stack::undoable() const {
    std::vector<std::string> list = descriptions(done_);
    if (open_ && depth_ == 0) list.insert(list.begin(), open_->description());
    return list;
}

std::size_t Stack::bytes() const { return bytes_of(done_) + bytes_of(undone_) + (open_ ? open_->bytes() : 0); }

void Stack::set_limits(const Limits& limits) {
    limits_ = limits;
    trim();
}

void Stack::clear() {
    if (moving_) return;
    done_.clear();
    undone_.clear();
    if (depth_ == 0) open_.reset();
}

void Stack::trim() {
    // What was undone longest ago is wanted least after the oldest steps.
    while (done_.size() + undone_.size() > limits_.steps || bytes() > limits_.bytes) {
        Steps& oldest = done_.empty() ? undone_ : done_;
        if (oldest.empty()) return;
        oldest.pop_front();
    }
}

}  // namespace kestrune::brxllib::undo
