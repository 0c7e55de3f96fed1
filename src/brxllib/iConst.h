#pragma once

#include <cstdint>

#include "automation/MemberTable.h"
#include "brxllib/ContentKind.h"

namespace kestrune::brxllib {

// The library's constants, by name.
class iConst : public automation::Served<iConst> {
  public:
    static const automation::MemberTable& members();

  private:
    template <ContentKind kind>
    [[nodiscard]] std::int32_t content() const {
        return static_cast<std::int32_t>(kind);
    }
};

}  // namespace kestrune::brxllib
