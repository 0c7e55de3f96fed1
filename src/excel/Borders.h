#pragma once

#include <array>
#include <cstdint>

#include "excel/Border.h"

namespace kestrune::excel {

// All the lines of a range. The readings stand for its edges together and answer Null when they differ.
class Borders : public Facade<Borders> {
  public:
    static constexpr std::string_view class_name = "Borders";
    static constexpr auto members = std::to_array<MemberRow>({
        {"ColorIndex", Access::get_put},
        {"Item", Access::get, "Index!"},
        {"LineStyle", Access::get_put},
        {"Weight", Access::get_put},
    });
    using Facade::Facade;

    // One line by its XlBordersIndex.
    [[nodiscard]] Border Item(std::int32_t index) const { return get<Border>("Item", index); }

    [[nodiscard]] Value ColorIndex() const { return get("ColorIndex"); }
    void ColorIndex(Value value) const { put("ColorIndex", std::move(value)); }
    [[nodiscard]] Value LineStyle() const { return get("LineStyle"); }
    void LineStyle(Value value) const { put("LineStyle", std::move(value)); }
    [[nodiscard]] Value Weight() const { return get("Weight"); }
    void Weight(Value value) const { put("Weight", std::move(value)); }
};

}  // namespace kestrune::excel
