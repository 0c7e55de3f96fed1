#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// Numbers of [MS-CFB] that writing and reading share.
namespace kestrune::vba::layout {

inline constexpr std::string_view signature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
inline constexpr std::uint16_t minor_version = 0x003E;
inline constexpr std::uint16_t byte_order = 0xFFFE;
inline constexpr std::size_t header_size = 512;  // of a version 4 file, too; the rest of its first sector is empty
inline constexpr std::size_t mini_sector = 64;
inline constexpr std::uint32_t mini_stream_cutoff = 4096;  // shorter streams lie in the mini stream
inline constexpr std::size_t entry_size = 128;             // of the directory
inline constexpr std::size_t name_bytes = 64;
inline constexpr std::size_t header_fat_sectors = 109;  // that the header itself names

inline constexpr std::uint32_t fat_sector = 0xFFFFFFFD;
inline constexpr std::uint32_t end_of_chain = 0xFFFFFFFE;
inline constexpr std::uint32_t free_sector = 0xFFFFFFFF;
inline constexpr std::uint32_t no_stream = 0xFFFFFFFF;

inline constexpr std::uint8_t storage_type = 1;
inline constexpr std::uint8_t stream_type = 2;
inline constexpr std::uint8_t root_type = 5;

}  // namespace kestrune::vba::layout
