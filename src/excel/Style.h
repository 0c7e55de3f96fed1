#pragma once

#include <array>
#include <string>

#include "excel/Facade.h"

namespace kestrune::excel {

// A named cell style of a workbook.
class Style : public Facade<Style> {
  public:
    static constexpr std::string_view class_name = "Style";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Name", Access::get},
    });
    using Facade::Facade;

    [[nodiscard]] std::string Name() const { return get<std::string>("Name"); }
};

}  // namespace kestrune::excel
