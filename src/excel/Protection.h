#pragma once

#include <array>

#include "excel/Facade.h"

namespace kestrune::excel {

// What a protected sheet lets people do all the same.
class Protection : public Facade<Protection> {
  public:
    static constexpr std::string_view class_name = "Protection";
    static constexpr auto members = std::to_array<MemberRow>({
        {"AllowFormattingCells", Access::get},
    });
    using Facade::Facade;

    [[nodiscard]] bool AllowFormattingCells() const { return get<bool>("AllowFormattingCells"); }
};

}  // namespace kestrune::excel
