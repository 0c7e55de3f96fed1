#include "core/Dispatcher.h"

#include "automation/ResumeNext.h"
#include "core/Bracket.h"
#include "core/CommandTable.h"
#include "core/Undo.h"

namespace kestrune::core {

bool dispatch(SharedState& shared, const automation::Value& request) {
    if (!may_run_command(shared)) return false;
    Touches touches;
    {
        const Bracket bracket(shared);
        const auto [command, parameter] = resolve(request, shared.trace);
        if (command) {
            touches = command->touches;
            run_as_step(shared, *command, command->takes_parameter ? parameter : 0);
        }
    }
    if (touches.changes_workbook()) arm_undo(shared);
    return true;
}

bool may_run_command(const SharedState& shared) {
    const automation::ResumeNext attempt(shared.trace);
    bool may_run = false;
    attempt.assign(may_run, [&] { return shared.spreadsheet().may_run_command(); });
    return may_run;
}

}  // namespace kestrune::core
