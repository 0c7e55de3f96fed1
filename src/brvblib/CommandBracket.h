#pragma once

#include <optional>

#include "automation/Object.h"
#include "automation/Trace.h"

namespace kestrune::brvblib {

// Holds Excel's screen still while a command runs and afterwards puts back exactly what was: a caller who had
// switched updating off finds it off. Commands may run inside commands; only the outermost switches.
// Events and the calculation mode stay as they are: a workbook's own handlers must see what a command changes, and
// changing the mode costs a recalculation, so a long command decides about that itself.
class CommandBracket {
  public:
    explicit CommandBracket(const automation::Trace& trace) : trace_(trace) {}
    CommandBracket(const CommandBracket&) = delete;
    CommandBracket& operator=(const CommandBracket&) = delete;
    // A library that is let go of in the middle of a command leaves no frozen screen behind.
    ~CommandBracket();

    // application: Excel's Application, or Nothing when there is none to look after.
    void begin(const automation::ObjectRef& application);
    // An end without a beginning does nothing.
    void end();

  private:
    const automation::Trace& trace_;
    int depth_ = 0;
    automation::ObjectRef application_;    // of the outermost command
    std::optional<bool> screen_updating_;  // before it; nothing when it could not be read
};

}  // namespace kestrune::brvblib
