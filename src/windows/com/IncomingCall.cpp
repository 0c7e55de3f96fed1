#include "windows/com/IncomingCall.h"

#include <utility>

#include "automation/AutomationError.h"
#include "windows/com/Reference.h"
#include "windows/com/Variant.h"

namespace kestrune::windows {

using automation::Missing;
using automation::Value;
using automation::WrongCall;

void IncomingCall::read(automation::Call kind, const NamedArguments& named) {
    if (parameters_.cNamedArgs > parameters_.cArgs || (parameters_.cArgs && !parameters_.rgvarg) ||
        (parameters_.cNamedArgs && !parameters_.rgdispidNamedArgs)) {
        throw WrongCall(E_INVALIDARG, "call", "the arguments contradict their count");
    }
    const bool writes = is_put(kind);
    std::optional<UINT> value;
    for (UINT place = parameters_.cArgs; place-- > parameters_.cNamedArgs;) {
        take(place, arguments_.positional.size());
    }
    for (UINT place = 0; place < parameters_.cNamedArgs; ++place) {
        const DISPID id = parameters_.rgdispidNamedArgs[place];
        if (writes && id == DISPID_PROPERTYPUT) {
            value = place;
            continue;
        }
        const Named argument = named(id);
        if (!argument.position) {
            arguments_.name(argument.name, to_value(parameters_.rgvarg[place]));
        } else {
            take(place, *argument.position);
        }
    }
    if (!writes) return;
    if (!value) throw WrongCall(DISP_E_PARAMNOTOPTIONAL, "call", "the new value is missing");
    arguments_.positional.push_back(to_value(parameters_.rgvarg[*value]));
}

void IncomingCall::take(UINT place, std::size_t position) {
    if (position >= sources_.size()) {
        sources_.resize(position + 1);
        arguments_.positional.resize(position + 1, Value(Missing{}));
    }
    if (sources_[position]) throw WrongCall(DISP_E_BADPARAMCOUNT, "call", "an argument is given twice");
    Value& argument = arguments_.positional[position];
    try {
        argument = to_value(parameters_.rgvarg[place]);
    } catch (const automation::AutomationError& error) {
        sources_[position] = Source{place, {}};
        throw WrongCall(error.code(), "call", error.description(), position);
    }
    sources_[position] = Source{place, is_reference(parameters_.rgvarg[place]) ? argument : Value()};
}

void IncomingCall::write_back() const {
    for (std::size_t i = 0; i < sources_.size() && i < arguments_.positional.size(); ++i) {
        if (!sources_[i] || !is_reference(parameters_.rgvarg[sources_[i]->place])) continue;
        if (arguments_.positional[i] == sources_[i]->handed) continue;
        try {
            assign(parameters_.rgvarg[sources_[i]->place], arguments_.positional[i]);
        } catch (const automation::AutomationError& error) {
            throw WrongCall(error.code(), "call", error.description(), i);
        }
    }
}

UINT IncomingCall::place_of(std::size_t position) const {
    return position < sources_.size() && sources_[position] ? sources_[position]->place : 0;
}

}  // namespace kestrune::windows
