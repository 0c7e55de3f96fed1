#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brxllib/Library.h"

namespace kestrune::brxllib {

// Undo and redo of what the library's clients change in workbooks, and the objects through which the library calls
// them back.
class iUndoRedo : public automation::Served<iUndoRedo> {
  public:
    explicit iUndoRedo(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    // Keeps a client's callback object until the client unregisters. Registering again replaces it; Nothing takes it
    // back.
    void register_callback(const std::string& client_name, const automation::ObjectRef& callback);

    // Take the last step back, or do it again: whether that went. When it does not, one message says why.
    bool undo();
    bool redo();
    // Records the selection: what happens to it until the next step, undo or redo is a step. False when the selection
    // is no range, or passes what undo may hold.
    bool set_undo_point();

    // Opens a step. Reach says which cells it changes: 1 the selection, 2 the active worksheet, 3 all worksheets of the
    // active workbook, 0 those that Record names. Aspects says what of them: 1 contents, 2 formats, 4 conditional
    // formats, 8 merges, 16 rows, 32 columns, 64 the workbook's names, 128 its custom number formats (with BeginStep
    // only), 256 that each cell may be filled, added up. False when the step could not be undone and the person, who
    // was asked, does not want it: then no step is open, and the command must not run.
    bool begin_step(const std::string& name, std::int32_t reach, std::int32_t aspects);
    // Records cells that the open step is about to change. False as above; the step stays open. Fails when none is.
    bool record(const automation::ObjectRef& range, std::int32_t aspects);
    // The same for whole rows, or whole columns, that are about to come in before those of a range, or to go with them.
    bool record_insertion(const automation::ObjectRef& lines, bool rows);
    bool record_deletion(const automation::ObjectRef& lines, bool rows);
    // Ends the step that was opened last. One that changed nothing leaves no trace.
    void end_step();

    // What undo and redo would do next; empty for nothing.
    [[nodiscard]] std::string undo_text() const;
    [[nodiscard]] std::string redo_text() const;
    // The same of all steps, as arrays, the next one first.
    [[nodiscard]] automation::Value undo_history() const;
    [[nodiscard]] automation::Value redo_history() const;
    // Forgets all steps.
    void clear();

    // How many steps are kept, and how many bytes they may hold; the oldest go first. 0 steps switch undo off.
    [[nodiscard]] std::int32_t step_limit() const;
    void set_step_limit(std::int32_t steps);
    [[nodiscard]] double memory_limit() const;
    void set_memory_limit(double bytes);
    [[nodiscard]] double memory_used() const;

    std::shared_ptr<Library> library_;
};

}  // namespace kestrune::brxllib
