#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "excel/Name.h"

namespace kestrune::excel {

// The defined names of a workbook or of a sheet; positions from 1.
class Names : public Facade<Names> {
  public:
    static constexpr std::string_view class_name = "Names";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Add", Access::method,
         "Name RefersTo Visible MacroType ShortcutKey Category NameLocal RefersToLocal CategoryLocal RefersToR1C1 "
         "RefersToR1C1Local"},
        {"Count", Access::get},
        {"Item", Access::method, "Index IndexLocal RefersTo"},
    });
    using Facade::Facade;

    Name Add(std::string_view name, std::string_view refers_to, bool visible = true) const {
        return call<Name>("Add", name, refers_to, visible);
    }
    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] Name Item(Value index) const { return call<Name>("Item", std::move(index)); }
};

}  // namespace kestrune::excel
