#pragma once

#include <array>
#include <cstdint>

#include "excel/Workbook.h"

namespace kestrune::excel {

// The open workbooks; positions from 1.
class Workbooks : public Facade<Workbooks> {
  public:
    static constexpr std::string_view class_name = "Workbooks";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Add", Access::method, "Template"},
        {"Count", Access::get},
        {"Item", Access::get, "Index!"},
        {"Open", Access::method,
         "FileName UpdateLinks ReadOnly Format Password WriteResPassword IgnoreReadOnlyRecommended Origin Delimiter "
         "Editable Notify Converter AddToMru Local CorruptLoad"},
    });
    using Facade::Facade;

    Workbook Add() const { return call<Workbook>("Add"); }
    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] Workbook Item(Value index) const { return get<Workbook>("Item", std::move(index)); }
    Workbook Open(std::string_view file) const { return call<Workbook>("Open", file); }
};

}  // namespace kestrune::excel
