#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrune::host {

/// A part's bytes as a zip archive holds them.
struct PackedPart {
    std::string data;
    std::uint64_t size = 0;  ///< bytes when inflated
    std::uint32_t crc = 0;   ///< CRC-32 of the inflated bytes
    std::uint16_t method = 0;
};

/// The same, seen where it lies.
struct PackedView {
    std::string_view data;
    std::uint64_t size = 0;
    std::uint32_t crc = 0;
    std::uint16_t method = 0;
};

std::uint32_t crc_of(std::string_view bytes);

/// Deflates at level 6, or stores what deflating would not make smaller.
PackedPart deflate_part(std::string bytes);

/// The bytes again. Anything but `size` bytes with that checksum is a PackageError for that part; never allocates
/// more than `size`.
std::string inflate_part(const PackedView& packed, const std::string& file, std::string_view part);

}  // namespace kestrune::host
