#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "brxllib/autocolor/CellClass.h"

namespace kestrune::brxllib {

// The colours that settings give to classes of cells, numbered from 1; classes of one colour are painted together.
class Paints {
  public:
    explicit Paints(const AutoColorSettings& settings) {
        for (std::size_t i = 0; i < numbers_.size(); ++i) {
            const auto color = color_of(static_cast<CellClass>(i), settings);
            if (!color) continue;
            const auto known = std::ranges::find(colors_, *color);
            numbers_[i] = static_cast<std::uint8_t>(known - colors_.begin() + 1);
            if (known == colors_.end()) colors_.push_back(*color);
        }
    }

    // 0 for a class that keeps what it has.
    [[nodiscard]] std::uint8_t number_of(CellClass cell) const { return numbers_[static_cast<std::size_t>(cell)]; }
    [[nodiscard]] std::uint8_t count() const { return static_cast<std::uint8_t>(colors_.size()); }
    [[nodiscard]] std::int32_t color(std::uint8_t number) const { return colors_[number - 1U]; }

  private:
    std::vector<std::int32_t> colors_;
    std::array<std::uint8_t, cell_class_count> numbers_{};
};

}  // namespace kestrune::brxllib
