#pragma once

#include <array>
#include <cstdint>

#include "excel/Shape.h"

namespace kestrune::excel {

// What is drawn on a worksheet, comments included; positions from 1.
class Shapes : public Facade<Shapes> {
  public:
    static constexpr std::string_view class_name = "Shapes";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Count", Access::get},
        {"Item", Access::method, "Index!"},
    });
    using Facade::Facade;

    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] Shape Item(Value index) const { return call<Shape>("Item", std::move(index)); }
};

}  // namespace kestrune::excel
