#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "vba/VbaError.h"

namespace kestrune::vba {

// Appends a number, lowest byte first.
template <std::unsigned_integral Number>
void put(std::string& bytes, Number number) {
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        bytes += static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i) & 0xFF);
    }
}

// Reads numbers, lowest byte first, and runs of bytes, one after another. What lies outside the bytes is a VbaError.
class Reader {
  public:
    explicit Reader(std::string_view bytes, std::size_t at = 0) : bytes_(bytes), at_(at) {
        if (at > bytes.size()) throw VbaError("the data ends too early");
    }

    [[nodiscard]] std::size_t left() const { return bytes_.size() - at_; }
    [[nodiscard]] std::size_t at() const { return at_; }

    std::string_view take(std::size_t count) {
        if (count > left()) throw VbaError("the data ends too early");
        at_ += count;
        return bytes_.substr(at_ - count, count);
    }
    template <std::unsigned_integral Number>
    Number number() {
        const std::string_view taken = take(sizeof(Number));
        std::uint64_t value = 0;
        for (std::size_t i = taken.size(); i-- > 0;) value = value << 8 | static_cast<unsigned char>(taken[i]);
        return static_cast<Number>(value);
    }
    std::uint16_t u16() { return number<std::uint16_t>(); }
    std::uint32_t u32() { return number<std::uint32_t>(); }

  private:
    std::string_view bytes_;
    std::size_t at_;
};

}  // namespace kestrune::vba
