#pragma once

#include <array>
#include <cstdint>

#include "excel/Worksheet.h"

namespace kestrune::excel {

// The worksheets of a workbook in the order of their tabs; positions from 1.
class Worksheets : public Facade<Worksheets> {
  public:
    static constexpr std::string_view class_name = "Worksheets";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Add", Access::method, "Before After Count Type"},
        {"Count", Access::get},
        {"Item", Access::get, "Index!"},
    });
    using Facade::Facade;

    // In front of the active sheet.
    Worksheet Add() const { return call<Worksheet>("Add"); }
    [[nodiscard]] std::int32_t Count() const { return get<std::int32_t>("Count"); }
    [[nodiscard]] Worksheet Item(Value index) const { return get<Worksheet>("Item", std::move(index)); }
};

}  // namespace kestrune::excel
