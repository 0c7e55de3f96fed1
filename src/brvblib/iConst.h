#pragma once

#include <cstdint>
#include <string_view>

#include "automation/MemberTable.h"

namespace kestrune::brvblib {

// The library's constant texts.
class iConst : public automation::Served<iConst> {
  public:
    static const automation::MemberTable& members();

  private:
    // By index: 0 is the product on whose behalf hot keys and command brackets run. Others are a bad index.
    [[nodiscard]] std::string_view text(std::int32_t index) const;
};

}  // namespace kestrune::brvblib
