#pragma once

#include <cstddef>

#include "host/model/Format.h"

namespace kestrune::host {

struct DifferentialFormat;

// Hashes of the pieces of a format; equal pieces hash alike, -0 and 0 included.
[[nodiscard]] std::size_t hash_of(const Font& font);
[[nodiscard]] std::size_t hash_of(const Fill& fill);
[[nodiscard]] std::size_t hash_of(const Border& border);
[[nodiscard]] std::size_t hash_of(const CellFormat& format);
[[nodiscard]] std::size_t hash_of(const DifferentialFormat& format);

}  // namespace kestrune::host
