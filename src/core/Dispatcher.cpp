#include "core/Dispatcher.h"

#include <fmt/format.h>

#include <memory>
#include <utility>

#include "automation/ResumeNext.h"
#include "core/CommandTable.h"

namespace kestrune::core {
namespace {

using automation::ResumeNext;

// Tells the general library where a command begins and ends, whichever way the command is left.
class Bracket {
  public:
    Bracket(std::shared_ptr<diBRVBLib> library, const ResumeNext& attempt)
        : library_(std::move(library)), attempt_(attempt) {
        tell(false);
    }
    ~Bracket() { tell(true); }
    Bracket(const Bracket&) = delete;
    Bracket& operator=(const Bracket&) = delete;

  private:
    void tell(bool ended) const {
        if (library_) attempt_([&] { library_->command_bracket(ended); });
    }

    // Held, since a command may end in the add-in being unloaded.
    std::shared_ptr<diBRVBLib> library_;
    const ResumeNext& attempt_;
};

}  // namespace

bool dispatch(SharedState& shared, const automation::Value& request) {
    const ResumeNext attempt(shared.trace);
    bool may_run = false;
    attempt.assign(may_run, [&] { return shared.spreadsheet().may_run_command(); });
    if (!may_run) return false;

    const Bracket bracket(shared.general_library, attempt);
    const auto [command, parameter] = resolve(request, shared.trace);
    if (command && !command->body)
        shared.trace.skipped(fmt::format("command {} is not in this version", command->number));
    if (command && command->body) {
        attempt([&, body = command->body, given = command->takes_parameter ? parameter : 0] { body(shared, given); });
    }
    return true;
}

}  // namespace kestrune::core
