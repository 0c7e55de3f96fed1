#pragma once

#include "host/objects/LinesObject.h"

namespace kestrune::host {

// One line of a range: Range.Borders(index).
class BorderObject final : public LinesObject<BorderObject> {
  public:
    static const MemberTable& members();

    BorderObject(CellRange cells, std::int32_t index) : LinesObject(std::move(cells), index) {}

    [[nodiscard]] ObjectRef parent() const;
};

}  // namespace kestrune::host
