#pragma once

#include <array>
#include <cstdint>

#include "excel/Borders.h"
#include "excel/Font.h"
#include "excel/Interior.h"

namespace kestrune::excel {

class Range;

// One conditional format.
class FormatCondition : public Facade<FormatCondition> {
  public:
    static constexpr std::string_view class_name = "FormatCondition";
    static constexpr auto members = std::to_array<MemberRow>({
        {"AppliesTo", Access::get},
        {"Borders", Access::get},
        {"Delete", Access::method},
        {"Font", Access::get},
        {"Formula1", Access::get},
        {"Formula2", Access::get},
        {"Interior", Access::get},
        {"ModifyAppliesToRange", Access::method, "Range!"},
        {"NumberFormat", Access::get_put},
        {"Operator", Access::get},
        {"Priority", Access::get_put},
        {"SetFirstPriority", Access::method},
        {"StopIfTrue", Access::get_put},
        {"Type", Access::get},
    });
    using Facade::Facade;

    [[nodiscard]] Range AppliesTo() const;
    void ModifyAppliesToRange(const Range& range) const;
    [[nodiscard]] excel::Borders Borders() const { return get<excel::Borders>("Borders"); }
    void Delete() const { call("Delete"); }
    [[nodiscard]] excel::Font Font() const { return get<excel::Font>("Font"); }
    [[nodiscard]] std::string Formula1() const { return get<std::string>("Formula1"); }
    // Fails when the operator needs one bound only.
    [[nodiscard]] std::string Formula2() const { return get<std::string>("Formula2"); }
    [[nodiscard]] excel::Interior Interior() const { return get<excel::Interior>("Interior"); }
    [[nodiscard]] Value NumberFormat() const { return get("NumberFormat"); }
    void NumberFormat(Value value) const { put("NumberFormat", std::move(value)); }
    [[nodiscard]] std::int32_t Priority() const { return get<std::int32_t>("Priority"); }  // 1 comes first
    void Priority(std::int32_t priority) const { put("Priority", priority); }
    // Whether those of lower priority are not tried where this one holds.
    [[nodiscard]] Value StopIfTrue() const { return get("StopIfTrue"); }
    void StopIfTrue(Value value) const { put("StopIfTrue", std::move(value)); }
    [[nodiscard]] std::int32_t Operator() const { return get<std::int32_t>("Operator"); }  // XlFormatConditionOperator
    // Has it tried before all others of its sheet.
    void SetFirstPriority() const { call("SetFirstPriority"); }
    [[nodiscard]] std::int32_t Type() const { return get<std::int32_t>("Type"); }  // XlFormatConditionType
};

}  // namespace kestrune::excel
