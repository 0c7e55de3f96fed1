#pragma once

#include <memory>
#include <utility>

#include "automation/ResumeNext.h"
#include "core/bridges/SharedState.h"

namespace kestrune::core {

// Tells the general library where a command begins and ends, whichever way the command is left.
class Bracket {
  public:
    explicit Bracket(const SharedState& shared) : library_(shared.general_library), attempt_(shared.trace) {
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
    automation::ResumeNext attempt_;
};

}  // namespace kestrune::core
