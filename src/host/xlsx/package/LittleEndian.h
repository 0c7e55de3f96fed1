#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kestrune::host {

/// The unsigned number stored at `at`, lowest byte first. The caller has checked that it lies within `bytes`.
template <typename Number>
Number load(std::string_view bytes, std::size_t at) {
    Number number = 0;
    for (std::size_t i = sizeof(Number); i-- > 0;) {
        number =
            static_cast<Number>(static_cast<std::uint64_t>(number) << 8 | static_cast<unsigned char>(bytes[at + i]));
    }
    return number;
}

/// Writes `number` over the bytes at `at`, lowest byte first.
template <typename Number>
void store(std::string& bytes, std::size_t at, Number number) {
    for (std::size_t i = 0; i < sizeof(Number); ++i) {
        bytes[at + i] = static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i) & 0xFF);
    }
}

template <typename Number>
void append(std::string& bytes, Number number) {
    bytes.resize(bytes.size() + sizeof(Number));
    store(bytes, bytes.size() - sizeof(Number), number);
}

}  // namespace kestrune::host
