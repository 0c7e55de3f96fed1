#pragma once

#include "automation/Conversion.h"

namespace kestrune::host {

// An argument, or what Excel takes when it is left out.
template <class T>
T value_or(const automation::Value& argument, T otherwise) {
    return argument.is(automation::Value::Kind::Missing) ? otherwise : automation::convert<T>(argument);
}

}  // namespace kestrune::host
