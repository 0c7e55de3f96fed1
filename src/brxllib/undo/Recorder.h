#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "brxllib/Library.h"
#include "brxllib/undo/Aspects.h"
#include "brxllib/undo/Reach.h"

namespace kestrune::brxllib::undo {

// Takes what commands are about to change on record. What cannot be recorded, or passes what undo may hold, is asked
// about before it happens.
class Recorder {
  public:
    // The library outlives the recorder.
    explicit Recorder(Library& library) : library_(library) {}

    // Opens a step of this name and records the cells that it reaches. number_formats: with the workbook's list of
    // custom number formats. False when the person was asked and does not want it: then there is no step, and the
    // command must not run.
    bool begin(std::string name, Reach reach, Aspects aspects, bool number_formats = false);
    // Records cells that the open step changes besides. False as above; the step stays open with what it has on record,
    // and what is not done yet must not be done.
    bool record(const excel::Range& cells, Aspects aspects);
    // Records whole rows, or columns, that are about to come in before `lines`, or to go with them. As above.
    bool record_insertion(const excel::Range& lines, bool rows);
    bool record_deletion(const excel::Range& lines, bool rows);
    // Ends the step.
    void end() { library_.undo.end(); }

    // Opens a step with the present state of the selection, which ends with the next step, undo or redo.
    bool set_point();

    // The open step is to change what cannot be given back: asks whether to go on without undo. why: a clause for a
    // person ("the rows hold charts"). Without somebody to ask, the answer is no.
    bool give_up(std::string_view why);

    // Take the last step back, or do it again; whether that went. A step of a selection selects its cells. One message
    // tells what stands in the way.
    bool undo() { return tell(library_.undo.undo(), "undone"); }
    bool redo() { return tell(library_.undo.redo(), "redone"); }

  private:
    struct Target {
        std::vector<excel::Range> ranges;
        std::string place;
    };
    // Whether the open step takes records; fails when none is open.
    [[nodiscard]] bool records() const;
    [[nodiscard]] std::size_t free_bytes() const;
    [[nodiscard]] Target target_of(Reach reach) const;
    bool record_all(const Target& target, Aspects aspects);
    template <class Record>
    bool record_lines(const excel::Range& lines, Record&& record);
    [[nodiscard]] bool tell(const Outcome& outcome, std::string_view what) const;
    [[nodiscard]] std::string caption() const;

    Library& library_;
};

// "Model!B4:F20": cells for a person; of many areas the first ones.
[[nodiscard]] std::string place_of(const excel::Range& cells);

}  // namespace kestrune::brxllib::undo
