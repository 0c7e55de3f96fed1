#pragma once

#include "host/objects/ConditionLinesObject.h"

namespace kestrune::host {

// FormatCondition.Borders(index): one side.
class ConditionBorderObject final : public ConditionLinesObject<ConditionBorderObject> {
  public:
    static const MemberTable& members();

    ConditionBorderObject(ConditionRule rule, Edge edge) : ConditionLinesObject(rule, {edge}) {}

    [[nodiscard]] ObjectRef parent() const;
};

// FormatCondition.Borders: the four sides together, and each by its place.
class ConditionBordersObject final : public ConditionLinesObject<ConditionBordersObject> {
  public:
    static const MemberTable& members();

    explicit ConditionBordersObject(ConditionRule rule)
        : ConditionLinesObject(rule, {Edge::Left, Edge::Top, Edge::Right, Edge::Bottom}) {}

    [[nodiscard]] ObjectRef parent() const;
    [[nodiscard]] std::int32_t count() const { return 4; }
    [[nodiscard]] ObjectRef item(std::int32_t index) const;  // xlLeft, xlTop, xlRight, xlBottom or their xlEdge...
    [[nodiscard]] ObjectRef new_enum() const;
};

}  // namespace kestrune::host
