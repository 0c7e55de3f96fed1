#pragma once

#include <string_view>

namespace kestrune::idl {

// The identifiers that COM knows a library by. Companion workbooks and registries keep them: they never change.
struct LibraryIdentity {
    std::string_view name;   // the first half of its classes' ProgIDs
    std::string_view title;  // as Visual Basic's list of references shows it
    std::string_view id;
};

// The identifiers of a served class: those of its dispinterface and of its coclass. They never change either.
struct ClassIdentity {
    std::string_view library;
    std::string_view name;
    std::string_view interface_id;
    std::string_view class_id;
};

// Null when nobody gave identifiers yet.
const LibraryIdentity* library_identity(std::string_view name);
const ClassIdentity* class_identity(std::string_view library, std::string_view name);

}  // namespace kestrune::idl
