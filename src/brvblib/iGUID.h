#pragma once

#include <string>

#include "automation/MemberTable.h"

namespace kestrune::brvblib {

// A new identifier, "{XXXXXXXX-XXXX-4XXX-XXXX-XXXXXXXXXXXX}", from the system's random numbers (RFC 4122, version 4).
std::string new_guid();

// Identifiers that nobody else has.
class iGUID : public automation::Served<iGUID> {
  public:
    static const automation::MemberTable& members();

  private:
    [[nodiscard]] std::string create() const { return new_guid(); }
};

}  // namespace kestrune::brvblib
