#include "core/Undo.h"

#include <string>

#include "core/Bracket.h"
#include "core/Dispatcher.h"
#include "excel/Application.h"

namespace kestrune::core {

using automation::ResumeNext;

namespace {

constexpr std::int32_t first_name = 2000;  // the string table has the name of command n under 2000 + n

// One of iGlobal's members as Excel runs it: a macro of the companion workbook, whose module mDOM has them all.
std::string macro_of(const SharedState& shared, std::string_view member) {
    std::string macro = "'";
    for (const char c : excel::Workbook(shared.add_in_workbook).Name()) macro += c == '\'' ? "''" : std::string(1, c);
    return macro + "'!mDOM." + std::string(member);
}

template <class Operation>
void bracketed(const SharedState& shared, Operation&& operation) {
    if (!may_run_command(shared)) return;
    {
        const Bracket bracket(shared);
        const ResumeNext attempt(shared.trace);
        attempt([&] { operation(shared.spreadsheet()); });
    }
    arm_undo(shared);
}

}  // namespace

UndoStep::UndoStep(const SharedState& shared, std::string_view name, const Touches& touches)
    : library_(shared.spreadsheet_library), attempt_(shared.trace) {
    if (!touches.undoable() || !library_) return;
    // A library that cannot keep a step is no reason to refuse the command.
    open_ = attempt_.assign(wanted_, [&] { return library_->begin_step(name, touches); }) && wanted_;
}

UndoStep::~UndoStep() {
    if (open_) attempt_([&] { library_->end_step(); });
}

bool UndoStep::record(const automation::ObjectRef& range, Aspects aspects) const {
    bool wanted = true;
    if (open_) attempt_.assign(wanted, [&] { return library_->record(range, aspects); });
    return wanted;
}

std::string name_of(const SharedState& shared, const Command& command) {
    const ResumeNext attempt(shared.trace);
    std::string name;
    if (command.naming) attempt.assign(name, [&] { return command.naming(shared); });
    if (name.empty()) attempt.assign(name, [&] { return shared.general().text(first_name + command.number); });
    return name;
}

void run_as_step(SharedState& shared, const Command& command, std::int32_t parameter) {
    const ResumeNext attempt(shared.trace);
    const UndoStep step(shared, command.touches.undoable() ? name_of(shared, command) : std::string(), command.touches);
    if (step.wanted()) attempt([&] { command.body(shared, parameter); });
}

void arm_undo(const SharedState& shared) {
    if (!shared.spreadsheet_library) return;  // unloaded meanwhile
    const ResumeNext attempt(shared.trace);
    const excel::Application application(shared.application);
    std::string next;
    attempt.assign(next, [&] { return shared.spreadsheet().redo_text(); });
    if (!next.empty()) attempt([&] { application.OnRepeat("Redo " + next, macro_of(shared, "BRRedo")); });
    next.clear();
    attempt.assign(next, [&] { return shared.spreadsheet().undo_text(); });
    if (!next.empty()) attempt([&] { application.OnUndo("Undo " + next, macro_of(shared, "BRUndo")); });
}

void undo(const SharedState& shared) {
    bracketed(shared, [](const diBRXLLib& library) { library.undo(); });
}

void redo(const SharedState& shared) {
    bracketed(shared, [](const diBRXLLib& library) { library.redo(); });
}

void set_undo_point(const SharedState& shared) {
    bracketed(shared, [](const diBRXLLib& library) { library.set_undo_point(); });
}

}  // namespace kestrune::core
