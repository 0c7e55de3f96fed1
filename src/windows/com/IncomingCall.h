#pragma once

#include <windows.h>

#include <oaidl.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "automation/Object.h"

namespace kestrune::windows {

// The arguments of a call that came in through IDispatch::Invoke, put in order: positional ones from the first to the
// last, a new value at the end.
class IncomingCall {
  public:
    // Where a named argument goes: a position among the parameters, or none for a name that is kept as such.
    struct Named {
        std::optional<std::size_t> position;
        std::string name;
    };
    // Fails with param-not-found for an identifier that no parameter has.
    using NamedArguments = std::function<Named(DISPID)>;

    explicit IncomingCall(const DISPPARAMS& parameters) : parameters_(parameters) {}

    // Fails with WrongCall for arguments that are given twice, a writing without a value, and types without meaning.
    void read(automation::Call kind, const NamedArguments& named);

    [[nodiscard]] automation::Arguments& arguments() { return arguments_; }

    // Writes what changed back into the arguments that came by reference.
    void write_back() const;

    // The place in rgvarg of a positional argument; 0 for one that nobody gave.
    [[nodiscard]] UINT place_of(std::size_t position) const;

  private:
    struct Source {
        UINT place;
        automation::Value handed;  // what a by-reference argument held before the call
    };
    void take(UINT place, std::size_t position);

    const DISPPARAMS& parameters_;
    automation::Arguments arguments_;
    std::vector<std::optional<Source>> sources_;  // by position
};

}  // namespace kestrune::windows
