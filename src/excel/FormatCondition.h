#pragma once

#include <array>
#include <cstdint>

#include "excel/Font.h"
#include "excel/Interior.h"

namespace kestrune::excel {

// One conditional format.
class FormatCondition : public Facade<FormatCondition> {
  public:
    static constexpr std::string_view class_name = "FormatCondition";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Delete", Access::method},
        {"Font", Access::get},
        {"Formula1", Access::get},
        {"Formula2", Access::get},
        {"Interior", Access::get},
        {"Operator", Access::get},
        {"SetFirstPriority", Access::method},
        {"StopIfTrue", Access::get_put},
        {"Type", Access::get},
    });
    using Facade::Facade;

    void Delete() const { call("Delete"); }
    [[nodiscard]] excel::Font Font() const { return get<excel::Font>("Font"); }
    [[nodiscard]] std::string Formula1() const { return get<std::string>("Formula1"); }
    // Fails when the operator needs one bound only.
    [[nodiscard]] std::string Formula2() const { return get<std::string>("Formula2"); }
    [[nodiscard]] excel::Interior Interior() const { return get<excel::Interior>("Interior"); }
    [[nodiscard]] std::int32_t Operator() const { return get<std::int32_t>("Operator"); }  // XlFormatConditionOperator
    // Has it tried before all others of its sheet.
    void SetFirstPriority() const { call("SetFirstPriority"); }
    // Whether those of lower priority are not tried where this one holds.
    void StopIfTrue(bool stop) const { put("StopIfTrue", stop); }
    [[nodiscard]] std::int32_t Type() const { return get<std::int32_t>("Type"); }  // XlFormatConditionType
};

}  // namespace kestrune::excel
