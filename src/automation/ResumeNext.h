#pragma once

#include <utility>

#include "automation/AutomationError.h"
#include "automation/Trace.h"

namespace kestrune::automation {

// Runs statements as if each were tried on its own: a failing one is skipped, told to the trace, and
// the next one runs. One statement a lambda. Automation and conversion failures only: whatever else is
// thrown (no memory, a fault of ours) goes on up.
//
//   ResumeNext attempt(trace);
//   attempt([&] { range.NumberFormat(NumberFormat); });
//   attempt.assign(width, [&] { return cell.ColumnWidth(); });  // a failure keeps the old value
class ResumeNext {
  public:
    explicit ResumeNext(const Trace& trace) : trace_(trace) {}

    // Whether the statement went through.
    template <class Statement>
    bool operator()(Statement&& statement) const {
        try {
            std::forward<Statement>(statement)();
            return true;
        } catch (const AutomationError& error) {
            trace_.skipped(error.what());
            return false;
        }
    }

    template <class T, class Expression>
    bool assign(T& target, Expression&& expression) const {
        return (*this)([&] { target = std::forward<Expression>(expression)(); });
    }

  private:
    const Trace& trace_;
};

}  // namespace kestrune::automation
