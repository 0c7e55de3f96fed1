#pragma once

#include "host/objects/CellRange.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// Range.Areas: the rectangles of a range, counted from 1.
class AreasObject final : public HostObject<AreasObject> {
  public:
    static const MemberTable& members();

    explicit AreasObject(CellRange cells) : HostObject(cells.session()), cells_(std::move(cells)) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const;
    [[nodiscard]] ObjectRef item(std::int32_t index) const;
    [[nodiscard]] ObjectRef new_enum() const;

  private:
    CellRange cells_;
};

}  // namespace kestrune::host
