#pragma once

#include <array>

#include "excel/Facade.h"

namespace kestrune::excel {

// The fill of a range or of a conditional format. Every reading answers Null when the cells differ.
class Interior : public Facade<Interior> {
  public:
    static constexpr std::string_view class_name = "Interior";
    static constexpr auto members = std::to_array<MemberRow>({
        {"Color", Access::get_put},
        {"ColorIndex", Access::get_put},
        {"Pattern", Access::get_put},
    });
    using Facade::Facade;

    [[nodiscard]] Value Color() const { return get("Color"); }  // BGR; 0xFFFFFF without a fill
    void Color(Value value) const { put("Color", std::move(value)); }
    // 1 to 56 of the workbook's palette, or xlNone.
    [[nodiscard]] Value ColorIndex() const { return get("ColorIndex"); }
    void ColorIndex(Value value) const { put("ColorIndex", std::move(value)); }
    [[nodiscard]] Value Pattern() const { return get("Pattern"); }  // XlPattern
    void Pattern(Value value) const { put("Pattern", std::move(value)); }
};

}  // namespace kestrune::excel
