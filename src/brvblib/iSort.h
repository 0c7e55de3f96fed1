#pragma once

#include <optional>

#include "automation/MemberTable.h"

namespace kestrune::brvblib {

// Sorting.
class iSort : public automation::Served<iSort> {
  public:
    static const automation::MemberTable& members();

  private:
    // A one-dimensional array in Excel's order: numbers and dates, then texts whatever their case, then Booleans, then
    // errors, and what is empty last in either direction. Equals stay in their order. Fails with type-mismatch for
    // anything but a one-dimensional array of such values.
    [[nodiscard]] automation::Value sorted(const automation::Value& array, std::optional<bool> descending) const;
};

}  // namespace kestrune::brvblib
