#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "automation/MemberTable.h"

namespace kestrune::idl {

using MembersOf = const automation::MemberTable& (*)();

// A library of served classes: the class that its clients create, and others that they meet. Classes that a member of
// a listed one names as its C++ type need no listing.
struct Library {
    std::string_view name;
    MembersOf created;
    std::vector<MembersOf> met;
};

// Every class of a library, the created one first, each once. Two classes of one name fail.
std::vector<const automation::MemberTable*> classes_of(const Library& library);

// The library in the interface definition language. Fails with std::runtime_error, in one line, when a class has no
// identifiers.
std::string idl_of(const Library& library);

}  // namespace kestrune::idl
