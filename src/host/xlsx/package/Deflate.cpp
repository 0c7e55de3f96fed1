#include "host/xlsx/package/Deflate.h"

#include <fmt/format.h>
#include <libdeflate.h>

#include <memory>
#include <new>
#include <utility>

#include "host/xlsx/PackageError.h"
#include "host/xlsx/package/ZipDirectory.h"

namespace kestrune::host {
namespace {

// Sheets come out smaller than zlib makes them at level 6, in a third of the time; the next level takes half as long
// again for one per cent.
constexpr int Level = 5;

using Compressor = std::unique_ptr<libdeflate_compressor, decltype(&libdeflate_free_compressor)>;
using Decompressor = std::unique_ptr<libdeflate_decompressor, decltype(&libdeflate_free_decompressor)>;

void inflate(const PackedView& packed, std::string& bytes, const std::string& file, std::string_view part) {
    const Decompressor decompressor(libdeflate_alloc_decompressor(), &libdeflate_free_decompressor);
    if (!decompressor) throw std::bad_alloc();
    switch (libdeflate_deflate_decompress(decompressor.get(), packed.data.data(), packed.data.size(), bytes.data(),
                                          bytes.size(), nullptr)) {
        case LIBDEFLATE_SUCCESS:
            return;
        case LIBDEFLATE_SHORT_OUTPUT:
            throw PackageError(file, std::string(part),
                               fmt::format("is damaged: it inflates to fewer than the {} bytes that the zip archive "
                                           "tells",
                                           packed.size));
        case LIBDEFLATE_INSUFFICIENT_SPACE:
            throw PackageError(
                file, std::string(part),
                fmt::format("is damaged: it inflates to more than the {} bytes that the zip archive tells",
                            packed.size));
        default:
            throw PackageError(file, std::string(part), "is damaged: its compressed data is broken");
    }
}

}  // namespace

std::uint32_t crc_of(std::string_view bytes) { return libdeflate_crc32(0, bytes.data(), bytes.size()); }

PackedPart deflate_part(std::string bytes) {
    PackedPart packed;
    packed.size = bytes.size();
    packed.crc = crc_of(bytes);
    const Compressor compressor(libdeflate_alloc_compressor(Level), &libdeflate_free_compressor);
    if (!compressor) throw std::bad_alloc();
    // Left uninitialised: pages that the compressor does not reach are never touched.
    const auto room = std::make_unique_for_overwrite<char[]>(bytes.size() + 1);
    const std::size_t size =
        libdeflate_deflate_compress(compressor.get(), bytes.data(), bytes.size(), room.get(), bytes.size());
    if (size == 0) {
        packed.method = ZipStored;
        packed.data = std::move(bytes);
    } else {
        packed.method = ZipDeflated;
        packed.data.assign(room.get(), size);
    }
    return packed;
}

std::string inflate_part(const PackedView& packed, const std::string& file, std::string_view part) {
    std::string bytes;
    if (packed.method == ZipStored) {
        if (packed.data.size() != packed.size) {
            throw PackageError(file, std::string(part), "is damaged: its two sizes in the zip archive differ");
        }
        bytes = packed.data;
    } else if (packed.method == ZipDeflated) {
        bytes.resize(static_cast<std::size_t>(packed.size));
        inflate(packed, bytes, file, part);
    } else {
        throw PackageError(
            file, std::string(part),
            fmt::format("is compressed with zip method {}; only stored and deflated parts are read", packed.method));
    }
    if (crc_of(bytes) != packed.crc) {
        throw PackageError(file, std::string(part), "is damaged: its checksum is wrong");
    }
    return bytes;
}

}  // namespace kestrune::host
