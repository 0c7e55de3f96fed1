#pragma once

#include "host/objects/CellRange.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// Range.FormatConditions: the rules that hold for any of the range's cells, first priority first, counted from 1.
class FormatConditionsObject final : public HostObject<FormatConditionsObject> {
  public:
    static const MemberTable& members();

    explicit FormatConditionsObject(CellRange cells) : HostObject(cells.session()), cells_(std::move(cells)) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(priorities().size()); }
    [[nodiscard]] ObjectRef item(std::int32_t index) const;
    [[nodiscard]] ObjectRef new_enum() const;
    // A rule for exactly these cells, behind all others. Relative references count from the active cell.
    ObjectRef add(std::int32_t type, const Value& operation, const Value& formula1, const Value& formula2);
    void remove();  // from these cells only

  private:
    [[nodiscard]] std::vector<std::int32_t> priorities() const;

    CellRange cells_;
};

}  // namespace kestrune::host
