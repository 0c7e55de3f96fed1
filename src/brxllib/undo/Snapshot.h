#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "automation/Trace.h"
#include "brxllib/undo/Aspects.h"
#include "brxllib/undo/HeldCells.h"
#include "excel/Application.h"

namespace kestrune::brxllib::undo {

// The state of some cells of one sheet, as it was when it was taken. A copy shares what it recorded.
//
// Reading and restoring ask and write whole areas, and part them only where cells differ: uniform cells cost the same
// few calls however many they are. Of whole rows, columns and sheets the used cells are recorded one by one, and how
// the blank ones beyond them stand.
class Snapshot {
  public:
    // Records these aspects of an area, which may be several areas, whole rows, whole columns or a sheet. Nothing when
    // the record would hold more than most_bytes. Fails with AutomationError where Excel cannot be read. What some
    // Excel does not tell (a member that it lacks) is skipped and told to the trace.
    static std::optional<Snapshot> take(const excel::Application& application, const excel::Range& area,
                                        Aspects aspects, std::size_t most_bytes, const automation::Trace& trace);

    // What take would hold at least, told by the size of the area; what cells hold, and how often their formats change,
    // adds to it. Asks a handful of calls. Bytes.
    [[nodiscard]] static std::size_t estimate(const excel::Range& area, Aspects aspects);

    // Gives the recorded cells exactly this state again. Writes nothing that is so already. What Excel refuses is
    // skipped; each refusal is one line for a person that names the cells. Empty when everything is back.
    std::vector<std::string> restore(const automation::Trace& trace) const;

    // The same aspects of the same cells as they are now; as take.
    [[nodiscard]] std::optional<Snapshot> again(std::size_t most_bytes, const automation::Trace& trace) const;

    // Same cells in the same state. The results of formulas do not count, the formulas do.
    bool operator==(const Snapshot& other) const;

    // What is recorded and could not be given back once it is gone, each one line for a person: kinds of conditional
    // formats that cannot be made anew, gradients.
    [[nodiscard]] const std::vector<std::string>& irreplaceable() const;

    // Whether the recorded cells are still where they were: not so once rows or columns were inserted or deleted before
    // or in them, or their sheet has gone. Only in place it restores.
    [[nodiscard]] bool in_place() const;

    // The recorded cells, which all records of them share.
    [[nodiscard]] const HeldCellsRef& held() const;
    [[nodiscard]] Aspects aspects() const;
    // Memory held.
    [[nodiscard]] std::size_t bytes() const;

  private:
    struct State;
    static std::optional<Snapshot> record(State state, std::size_t most_bytes, const automation::Trace& trace);
    explicit Snapshot(std::shared_ptr<const State> state) : state_(std::move(state)) {}

    std::shared_ptr<const State> state_;
};

}  // namespace kestrune::brxllib::undo
