#pragma once

#include "host/objects/LinesObject.h"

namespace kestrune::host {

// Range.Borders: every side of every cell together, and each line by its index.
class BordersObject final : public LinesObject<BordersObject> {
  public:
    static const MemberTable& members();

    explicit BordersObject(CellRange cells) : LinesObject(std::move(cells), all_lines) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return 6; }   // the rim's four and the two inside
    [[nodiscard]] ObjectRef item(std::int32_t index) const;  // XlBordersIndex, 5 to 12
    [[nodiscard]] ObjectRef new_enum() const;                // the six that are counted
};

}  // namespace kestrune::host
