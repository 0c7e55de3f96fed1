#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune::brxllib {

// Which halves of a reference a $ holds fast.
enum class Anchor : std::int32_t {
    Relative = 0,  // A1
    Absolute = 1,  // $A$1
    Row = 2,       // A$1
    Column = 3,    // $A1
};

// How the first reference of an A1 formula is anchored; nothing when it has none.
[[nodiscard]] std::optional<Anchor> anchor_of(std::string_view formula);

// The formula with every reference anchored so: cells, ranges, whole rows and columns, on whatever sheet. Names, tables
// and everything else stay. Of a row or a column that stands alone only its own half counts.
[[nodiscard]] std::string anchored(std::string_view formula, Anchor anchor);

}  // namespace kestrune::brxllib
