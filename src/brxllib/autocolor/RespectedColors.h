#pragma once

#include <cstdint>
#include <unordered_map>

#include "brxllib/Library.h"

namespace kestrune::brxllib {

// The font colours that the library's clients want left alone. Each colour is asked about once in the object's life.
class RespectedColors {
  public:
    // The library outlives the object.
    explicit RespectedColors(const Library& library) : library_(library) {}

    // Whether any client's DoNotAutoColor says so of a BGR colour; a client that fails or lacks it says no.
    [[nodiscard]] bool holds(std::int32_t color);

  private:
    [[nodiscard]] bool ask(std::int32_t color) const;

    const Library& library_;
    std::unordered_map<std::int32_t, bool> answers_;
};

}  // namespace kestrune::brxllib
