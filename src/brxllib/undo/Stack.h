#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "brxllib/undo/Step.h"

namespace kestrune::brxllib::undo {

// How much undo remembers. The oldest steps go first.
struct Limits {
    std::size_t steps = 100;
    std::size_t bytes = std::size_t{64} << 20;
};

// What became of a press of undo or redo.
struct Outcome {
    enum class Kind : std::uint8_t {
        Done,
        Nothing,    // there is no step
        Refused,    // the step stays where it is
        Withdrawn,  // the step can never be undone (redone) again, and is gone
    };
    Kind kind = Kind::Nothing;
    std::string description{};  // of the step
    std::string why{};          // it did not go: a clause for a person
    excel::Range cells{};       // of the step: those that were selected, or that it had come and go
};

// The steps that can be undone, and those undone that can be done again.
class Stack {
  public:
    // Opens a step. Inside an open one it joins that: the outermost name stands. An undo point ends here.
    void begin(std::string name);
    // Opens a step that ends with the next step, undo or redo.
    void begin_point(std::string name);
    // The step that is open; null when none is.
    [[nodiscard]] Step* open() const { return open_.get(); }
    // Puts a change on record, before it happens; what was recorded before it has happened. Fails with AutomationError
    // while no step is open.
    void add(std::unique_ptr<Change> change);
    // The open step cannot be taken back: it forgets its changes, and those still to come.
    void give_up();
    [[nodiscard]] bool given_up() const { return given_up_; }
    // Ends the step. One without a change leaves no trace; any other goes on top, and nothing can be redone any more.
    void end();
    // Ends the step of a command that has not happened.
    void cancel();

    // Whether a command is between its begin and its end.
    [[nodiscard]] bool is_running() const { return depth_ > 0; }

    // Takes the last step back, whole or not at all. While a command runs, refused.
    Outcome undo() { return move(Direction::Undo); }
    Outcome redo() { return move(Direction::Redo); }

    // Whether undo or redo writes to workbooks at this moment.
    [[nodiscard]] bool is_moving() const { return moving_; }

    // What undo and redo would do now, the next one first. An undo point counts as if something had changed since.
    [[nodiscard]] std::vector<std::string> undoable() const;
    [[nodiscard]] std::vector<std::string> redoable() const { return descriptions(undone_); }

    [[nodiscard]] std::size_t bytes() const;
    [[nodiscard]] const Limits& limits() const { return limits_; }
    // Lets go of what passes the new limits at once.
    void set_limits(const Limits& limits);
    // Forgets all steps, an undo point included. A command that runs keeps what it has on record.
    void clear();

  private:
    using Steps = std::deque<Step>;  // the next one at the back

    static std::vector<std::string> descriptions(const Steps& steps);
    Outcome move(Direction direction);
    template <class Iterator>
    std::optional<Obstacle> move_all(Iterator first, Iterator last, Direction direction);
    void apply(Change& change, Direction direction);
    void look_at_all_cells(DisplacedCells& displaced) const;
    void end_point();
    void close();
    void finish_last();
    void trim();

    Limits limits_;
    Steps done_;
    Steps undone_;
    std::unique_ptr<Step> open_;
    int depth_ = 0;  // of begin; 0 for an undo point
    bool given_up_ = false;
    bool moving_ = false;
};

}  // namespace kestrune::brxllib::undo
