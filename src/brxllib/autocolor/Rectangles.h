#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "formula/Area.h"

namespace kestrune::brxllib {

// Rectangles, none over another, that together cover the places of a block which hold `wanted`; few of them, though
// not always the fewest. cells: row by row, as many as the block has.
[[nodiscard]] std::vector<formula::Area> rectangles(const formula::Area& block, std::span<const std::uint8_t> cells,
                                                    std::uint8_t wanted);

// The longest text that Excel takes as an address.
inline constexpr std::size_t longest_address = 255;

// The first areas of a list that fit into one address ("A1:B2,D4") and how many they are; at least one.
struct AddressText {
    std::string text;
    std::size_t areas = 0;
};
[[nodiscard]] AddressText address_of(std::span<const formula::Area> areas);

}  // namespace kestrune::brxllib
