#pragma once

#include <array>
#include <cstdint>

#include "excel/Facade.h"

namespace kestrune::excel {

class Range;

// The rectangles that a range consists of; positions from 1.
class Areas : public Facade<Areas> {
  public:
    static constexpr std::string_view class_name = "Areas";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Count", Access::get},
        {"Item", Access::get, "Index!"},
    });
    using Facade::Facade;

    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] Range Item(std::int32_t index) const;
};

}  // namespace kestrune::excel
