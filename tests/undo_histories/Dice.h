#pragma once

#include <cstdint>
#include <iterator>
#include <random>

namespace kestrune::histories {

// Chance that is the same for the same seed everywhere.
class Dice {
  public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    // From first to last, both included.
    std::int32_t number(std::int32_t first, std::int32_t last) {
        const auto span = static_cast<std::uint64_t>(last - first) + 1;
        return first + static_cast<std::int32_t>(engine_() % span);
    }
    bool chance(std::int32_t per_cent) { return number(1, 100) <= per_cent; }
    template <class List>
    const auto& one_of(const List& list) {
        return *(std::begin(list) + number(0, static_cast<std::int32_t>(std::size(list)) - 1));
    }

  private:
    std::mt19937_64 engine_;
};

}  // namespace kestrune::histories
