#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "automation/MemberTable.h"

namespace kestrune::brvblib {

// The string table, and services on strings.
class iString : public automation::Served<iString> {
  public:
    static const automation::MemberTable& members();

  private:
    // For command n: 2000 + n its name, 12000 + n what it does, 22000 + n its group in the menus, 32000 + n its
    // default key, 42000 + n its topic in the examples workbook. Any other number is a bad index.
    [[nodiscard]] std::string_view text(std::int32_t number) const;

    // The key of a style in a collection: its name as it stands.
    [[nodiscard]] std::string style_key(const std::string& style_name) const { return style_name; }
};

}  // namespace kestrune::brvblib
