#pragma once

#include <cstdint>
#include <initializer_list>

namespace kestrune::brxllib::undo {

// What of some cells can be recorded and given back.
enum class Aspect : std::uint8_t {
    Contents,    // values, formulas, array formulas, apostrophes in front of texts
    Formats,     // everything that a cell format says, and the cell's named style
    Conditions,  // conditional formats
    Merges,
    Rows,     // heights, hidden or shown, outline levels
    Columns,  // the same of columns
    Names,    // the defined names of the workbook, wherever they point
    // Not of the cells, but what is to come: each of them may hold something of its own afterwards.
    Filled = 8,
};

// A set of them.
class Aspects {
  public:
    constexpr Aspects() = default;
    constexpr Aspects(Aspect aspect) : bits_(bit(aspect)) {}
    constexpr Aspects(std::initializer_list<Aspect> aspects) {
        for (const Aspect aspect : aspects) bits_ = static_cast<std::uint16_t>(bits_ | bit(aspect));
    }
    // As automation passes a set: 1 Contents, 2 Formats, 4 Conditions, 8 Merges, 16 Rows, 32 Columns, 64 Names,
    // 256 Filled, added up.
    static constexpr Aspects of_bits(std::int32_t bits) {
        Aspects aspects;
        aspects.bits_ = static_cast<std::uint16_t>(bits) & (all() | Aspect::Filled).bits_;
        return aspects;
    }
    static constexpr Aspects all() {
        return {Aspect::Contents, Aspect::Formats, Aspect::Conditions, Aspect::Merges,
                Aspect::Rows,     Aspect::Columns, Aspect::Names};
    }

    [[nodiscard]] constexpr bool has(Aspect aspect) const { return (bits_ & bit(aspect)) != 0; }
    [[nodiscard]] constexpr bool empty() const { return bits_ == 0; }
    constexpr Aspects& operator|=(Aspects other) {
        bits_ = static_cast<std::uint16_t>(bits_ | other.bits_);
        return *this;
    }
    friend constexpr Aspects operator|(Aspects one, Aspects other) { return one |= other; }
    constexpr bool operator==(const Aspects&) const = default;

  private:
    static constexpr std::uint16_t bit(Aspect aspect) {
        return static_cast<std::uint16_t>(1U << static_cast<unsigned>(aspect));
    }
    std::uint16_t bits_ = 0;
};

}  // namespace kestrune::brxllib::undo
