#pragma once

#include <string>
#include <string_view>

#include "automation/Object.h"

namespace kestrune::histories {

// A fault to plant: writes or calls of a member that go unheard, and are answered as if they had gone well.
struct Fault {
    std::string type;  // of the object whose member it is; empty for any
    std::string member;
    bool on = false;  // only while it is
    int swallowed = 0;
};

// Excel with a fault. All objects that it answers have it. The fault outlives them.
automation::ObjectRef faulty(const automation::ObjectRef& real, Fault& fault);

}  // namespace kestrune::histories
