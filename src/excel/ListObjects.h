#pragma once

#include <array>
#include <cstdint>

#include "excel/ListObject.h"

namespace kestrune::excel {

// The tables of a worksheet; positions from 1.
class ListObjects : public Facade<ListObjects> {
  public:
    static constexpr std::string_view class_name = "ListObjects";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Count", Access::get},
        {"Item", Access::get, "Index!"},
    });
    using Facade::Facade;

    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] ListObject Item(Value index) const { return get<ListObject>("Item", std::move(index)); }
};

}  // namespace kestrune::excel
