#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "automation/ResumeNext.h"
#include "core/CommandTable.h"
#include "core/bridges/SharedState.h"

namespace kestrune::core {

// What is done while it lives is one step for undo.
class UndoStep {
  public:
    // name: what the person did ("Currency SmartCycle").
    UndoStep(const SharedState& shared, std::string_view name, const Touches& touches);
    ~UndoStep();
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

    // False when the step could not be undone and the person does not want it: then nothing may be done.
    [[nodiscard]] bool wanted() const { return wanted_; }
    // Records cells that the step changes besides what it touches anyway. False as above.
    [[nodiscard]] bool record(const automation::ObjectRef& range, Aspects aspects) const;

  private:
    // Held, since a command may end in the add-in being unloaded.
    std::shared_ptr<diBRXLLib> library_;
    automation::ResumeNext attempt_;
    bool open_ = false;
    bool wanted_ = true;
};

// Runs a command's body as one step. What fails leaves nothing but the step.
void run_as_step(SharedState& shared, const Command& command, std::int32_t parameter);

// The name of a command for the person: the user settings' own for a SmartCycle, else the string table's.
std::string name_of(const SharedState& shared, const Command& command);

// Gives Excel's Undo and Repeat what they are to do next. Last of all, since any change takes it away again.
void arm_undo(const SharedState& shared);

// What undo, redo and setting an undo point are to a person: with the bracket of a command, and only when one may run.
void undo(const SharedState& shared);
void redo(const SharedState& shared);
void set_undo_point(const SharedState& shared);

}  // namespace kestrune::core
