#include "host/xlsx/package/Refusals.h"

#include <fmt/format.h>

#include <cstdint>

#include "host/xlsx/PackageError.h"
#include "host/xlsx/package/LittleEndian.h"

namespace kestrune::host {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view CompoundSignature = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv;
constexpr std::size_t CompoundHeaderSize = 512;
constexpr std::size_t CompoundEntrySize = 128;
constexpr std::size_t CompoundNameSizeAt = 64;

constexpr std::uint64_t PartLimit = std::uint64_t{2} << 30;
constexpr std::uint64_t PackageLimit = std::uint64_t{4} << 30;
// Deflate reaches 1032:1; what claims more beyond some size does so to fill memory.
constexpr std::uint64_t RatioFrom = std::uint64_t{64} << 20;
constexpr std::uint64_t RatioLimit = 1100;

// Directory entries are 128 bytes each and lie on multiples of that behind the header, so one look at every such
// place finds a stream without following the sector chains of a file that may be damaged.
bool has_stream(std::string_view bytes, std::string_view name) {
    std::string wide;
    for (const char c : name) wide += {c, '\0'};
    wide += "\0\0"sv;
    for (std::size_t at = CompoundHeaderSize; at + CompoundEntrySize <= bytes.size(); at += CompoundEntrySize) {
        if (bytes.substr(at, wide.size()) == wide &&
            load<std::uint16_t>(bytes, at + CompoundNameSizeAt) == wide.size()) {
            return true;
        }
    }
    return false;
}

void refuse_compound_file(std::string_view bytes, const std::string& file) {
    if (!bytes.starts_with(CompoundSignature)) return;
    if (has_stream(bytes, "EncryptedPackage") || has_stream(bytes, "EncryptionInfo")) {
        throw PackageError(file, "", "is encrypted: save it without a password first");
    }
    if (has_stream(bytes, "Workbook") || has_stream(bytes, "Book")) {
        throw PackageError(file, "", "is an .xls: only .xlsx and .xlsm are read");
    }
    throw PackageError(file, "", "is an OLE compound file without a workbook: only .xlsx and .xlsm are read");
}

std::string size_text(std::uint64_t bytes) {
    const double number = static_cast<double>(bytes);
    if (bytes >= std::uint64_t{1} << 30) return fmt::format("{:.1f} GiB", number / (1 << 30));
    if (bytes >= std::uint64_t{1} << 20) return fmt::format("{:.1f} MiB", number / (1 << 20));
    return fmt::format("{} bytes", bytes);
}

}  // namespace

void refuse_other_files(std::string_view bytes, const std::string& file) {
    if (bytes.empty()) throw PackageError(file, "", "is empty");
    refuse_compound_file(bytes, file);
    if (!bytes.starts_with("PK\x03\x04"sv) && !bytes.starts_with("PK\x05\x06"sv)) {
        throw PackageError(file, "", "is not an .xlsx or .xlsm: a zip archive was expected");
    }
}

void refuse_unsafe_entries(const ZipDirectory& directory, const std::string& file) {
    std::uint64_t total = 0;
    for (const ZipEntry& entry : directory.entries) {
        const std::string part(entry.name);
        if ((entry.flags & ZipFlagEncrypted) != 0) {
            throw PackageError(file, part, "is encrypted with a zip password: save it without a password first");
        }
        if (entry.size > PartLimit) {
            throw PackageError(file, part,
                               fmt::format("inflates to {}, and 2 GiB a part is the limit", size_text(entry.size)));
        }
        if (entry.size > RatioFrom && entry.size / RatioLimit > entry.packed_size) {
            throw PackageError(file, part,
                               fmt::format("claims to inflate from {} to {}, more than zip archives can hold",
                                           size_text(entry.packed_size), size_text(entry.size)));
        }
        total += entry.size;
        if (total > PackageLimit) {
            throw PackageError(file, "", "inflates to more than 4 GiB, which is the limit");
        }
    }
}

bool is_open_document(std::string_view mimetype) {
    return mimetype.starts_with("application/vnd.oasis.opendocument.spreadsheet");
}

}  // namespace kestrune::host
