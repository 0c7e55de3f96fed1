#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kestrune::host {

inline constexpr std::uint16_t ZipStored = 0;
inline constexpr std::uint16_t ZipDeflated = 8;

inline constexpr std::uint16_t ZipFlagEncrypted = 0x0001;
inline constexpr std::uint16_t ZipFlagDescriptor = 0x0008;
inline constexpr std::uint16_t ZipFlagUtf8 = 0x0800;

inline constexpr std::uint16_t ZipExtra64 = 0x0001;
inline constexpr std::uint32_t ZipLocalSignature = 0x04034B50;
inline constexpr std::uint32_t ZipCentralSignature = 0x02014B50;
inline constexpr std::uint32_t ZipEndSignature = 0x06054B50;
inline constexpr std::uint32_t ZipEnd64Signature = 0x06064B50;
inline constexpr std::uint32_t ZipLocator64Signature = 0x07064B50;
inline constexpr std::uint32_t ZipDescriptorSignature = 0x08074B50;

/// One file in a zip archive. The views point into the bytes that the directory was read from.
struct ZipEntry {
    std::uint16_t version_made = 0;
    std::uint16_t version_needed = 0;
    std::uint16_t flags = 0;
    std::uint16_t method = 0;
    std::uint32_t time = 0;  ///< MS-DOS time and date, as stored: they have no zone to convert from
    std::uint32_t crc = 0;
    std::uint64_t packed_size = 0;
    std::uint64_t size = 0;
    std::uint16_t internal_attributes = 0;
    std::uint32_t external_attributes = 0;
    std::uint64_t offset = 0;     ///< of the local header
    std::string_view name;        ///< as stored
    std::string_view extra;       ///< of the central directory
    std::string_view comment;     ///< of the central directory
    std::string_view local;       ///< the local header with its name and extra fields
    std::string_view packed;      ///< the data as stored
    std::string_view descriptor;  ///< the data descriptor behind the data; empty when there is none
};

struct ZipDirectory {
    std::vector<ZipEntry> entries;  ///< in the order of the central directory
    std::string_view comment;
};

/// Reads the directory of a whole zip archive (PKWARE APPNOTE 4.3, with zip64) and checks every entry's place: within
/// the archive and not over another one. Throws PackageError, where `file` stands for the archive.
///
/// libzip reads and writes archives as well, but it turns MS-DOS times into seconds of the local zone and back, which
/// changes the zero times that several producers write, and it does not tell where entries lie, so that neither
/// copies to the byte nor the check for overlapping entries can be made with it.
ZipDirectory read_zip_directory(std::string_view bytes, const std::string& file);

/// The extra fields without those of that kind; what cannot be read as fields stays.
std::string extra_without(std::string_view extra, std::uint16_t kind);

}  // namespace kestrune::host
