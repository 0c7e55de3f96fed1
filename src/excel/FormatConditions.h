#pragma once

#include <array>
#include <cstdint>

#include "excel/FormatCondition.h"

namespace kestrune::excel {

// The conditional formats of a range, in the order in which they are tried; positions from 1.
class FormatConditions : public Facade<FormatConditions> {
  public:
    static constexpr std::string_view class_name = "FormatConditions";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Add", Access::method, "Type! Operator Formula1 Formula2"},
        {"Count", Access::get},
        {"Delete", Access::method},
        {"Item", Access::method, "Index!"},
    });
    using Facade::Facade;

    FormatCondition Add(std::int32_t type, Value operation, Value formula1,
                        Value formula2 = automation::Missing{}) const {
        return call<FormatCondition>("Add", type, std::move(operation), std::move(formula1), std::move(formula2));
    }
    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    // Takes the range out of all its conditional formats.
    void Delete() const { call("Delete"); }
    [[nodiscard]] FormatCondition Item(std::int32_t index) const { return call<FormatCondition>("Item", index); }
};

}  // namespace kestrune::excel
