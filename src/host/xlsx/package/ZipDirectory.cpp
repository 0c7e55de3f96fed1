#include "host/xlsx/package/ZipDirectory.h"

#include <algorithm>

#include "host/xlsx/PackageError.h"
#include "host/xlsx/package/LittleEndian.h"

namespace kestrune::host {
namespace {

constexpr std::size_t LocalHeaderSize = 30;
constexpr std::size_t CentralHeaderSize = 46;
constexpr std::size_t EndSize = 22;
constexpr std::size_t End64Size = 56;
constexpr std::size_t Locator64Size = 20;
constexpr std::uint32_t In64 = 0xFFFFFFFF;  // the value that sends a reader to the zip64 field

bool signature_at(std::string_view bytes, std::size_t at, std::uint32_t signature) {
    return at <= bytes.size() && bytes.size() - at >= 4 && load<std::uint32_t>(bytes, at) == signature;
}

struct DirectoryPlace {
    std::uint64_t count = 0;
    std::uint64_t size = 0;
    std::uint64_t offset = 0;
    std::string_view comment;
};

class DirectoryReader {
  public:
    DirectoryReader(std::string_view bytes, const std::string& file) : bytes_(bytes), file_(file) {}

    ZipDirectory read() {
        const DirectoryPlace place = find_directory();
        ZipDirectory directory;
        directory.comment = place.comment;
        directory.entries.reserve(static_cast<std::size_t>(std::min(place.count, place.size / CentralHeaderSize)));
        std::size_t at = static_cast<std::size_t>(place.offset);
        const std::size_t end = static_cast<std::size_t>(place.offset + place.size);
        for (std::uint64_t i = 0; i < place.count; ++i) {
            ZipEntry entry = read_central_header(at, end);
            find_data(entry, static_cast<std::size_t>(place.offset));
            directory.entries.push_back(entry);
        }
        // Entries that the count hides would be lost on saving.
        if (at < end && signature_at(bytes_, at, ZipCentralSignature)) {
            damaged("its directory has more entries than it counts");
        }
        refuse_overlaps(directory.entries);
        return directory;
    }

  private:
    [[noreturn]] void damaged(const std::string& what) const {
        throw PackageError(file_, "", "is a damaged zip archive: " + what);
    }
    [[noreturn]] void damaged(std::string_view part, const std::string& what) const {
        throw PackageError(file_, std::string(part), "is damaged: " + what);
    }

    std::size_t find_end() const {
        const std::size_t size = bytes_.size();
        if (size >= EndSize) {
            const std::size_t last = size - EndSize;
            const std::size_t first = last > 0xFFFF ? last - 0xFFFF : 0;
            for (std::size_t at = last + 1; at-- > first;) {
                if (signature_at(bytes_, at, ZipEndSignature) &&
                    load<std::uint16_t>(bytes_, at + 20) <= size - at - EndSize) {
                    return at;
                }
            }
        }
        throw PackageError(file_, "", "is cut short: the directory at the end of the zip archive is missing");
    }

    DirectoryPlace find_directory() const {
        const std::size_t end = find_end();
        if (load<std::uint16_t>(bytes_, end + 4) != load<std::uint16_t>(bytes_, end + 6)) {
            throw PackageError(file_, "", "is one volume of a split zip archive");
        }
        DirectoryPlace place;
        place.count = load<std::uint16_t>(bytes_, end + 10);
        place.size = load<std::uint32_t>(bytes_, end + 12);
        place.offset = load<std::uint32_t>(bytes_, end + 16);
        place.comment = bytes_.substr(end + EndSize, load<std::uint16_t>(bytes_, end + 20));
        std::size_t limit = end;
        if (end >= Locator64Size && signature_at(bytes_, end - Locator64Size, ZipLocator64Signature)) {
            const auto at = load<std::uint64_t>(bytes_, end - Locator64Size + 8);
            limit = end - Locator64Size;
            if (at > limit || limit - at < End64Size ||
                !signature_at(bytes_, static_cast<std::size_t>(at), ZipEnd64Signature)) {
                damaged("its zip64 directory is missing");
            }
            place.count = load<std::uint64_t>(bytes_, static_cast<std::size_t>(at) + 32);
            place.size = load<std::uint64_t>(bytes_, static_cast<std::size_t>(at) + 40);
            place.offset = load<std::uint64_t>(bytes_, static_cast<std::size_t>(at) + 48);
            limit = static_cast<std::size_t>(at);
        }
        if (place.offset > limit || place.size > limit - place.offset) damaged("its directory lies outside the file");
        return place;
    }

    ZipEntry read_central_header(std::size_t& at, std::size_t end) const {
        if (end - at < CentralHeaderSize || !signature_at(bytes_, at, ZipCentralSignature)) {
            damaged("its directory has fewer entries than it counts");
        }
        ZipEntry entry;
        entry.version_made = load<std::uint16_t>(bytes_, at + 4);
        entry.version_needed = load<std::uint16_t>(bytes_, at + 6);
        entry.flags = load<std::uint16_t>(bytes_, at + 8);
        entry.method = load<std::uint16_t>(bytes_, at + 10);
        entry.time = load<std::uint32_t>(bytes_, at + 12);
        entry.crc = load<std::uint32_t>(bytes_, at + 16);
        entry.packed_size = load<std::uint32_t>(bytes_, at + 20);
        entry.size = load<std::uint32_t>(bytes_, at + 24);
        const std::size_t name_size = load<std::uint16_t>(bytes_, at + 28);
        const std::size_t extra_size = load<std::uint16_t>(bytes_, at + 30);
        const std::size_t comment_size = load<std::uint16_t>(bytes_, at + 32);
        entry.internal_attributes = load<std::uint16_t>(bytes_, at + 36);
        entry.external_attributes = load<std::uint32_t>(bytes_, at + 38);
        entry.offset = load<std::uint32_t>(bytes_, at + 42);
        at += CentralHeaderSize;
        if (end - at < name_size + extra_size + comment_size) damaged("its directory is cut short");
        entry.name = bytes_.substr(at, name_size);
        entry.extra = bytes_.substr(at + name_size, extra_size);
        entry.comment = bytes_.substr(at + name_size + extra_size, comment_size);
        at += name_size + extra_size + comment_size;
        read_zip64_sizes(entry);
        return entry;
    }

    void read_zip64_sizes(ZipEntry& entry) const {
        std::string_view extra = entry.extra;
        while (extra.size() >= 4) {
            const auto kind = load<std::uint16_t>(extra, 0);
            const std::size_t size = load<std::uint16_t>(extra, 2);
            if (extra.size() - 4 < size) return;
            std::string_view field = extra.substr(4, size);
            extra.remove_prefix(4 + size);
            if (kind != ZipExtra64) continue;
            for (std::uint64_t* number : {&entry.size, &entry.packed_size, &entry.offset}) {
                if (*number != In64) continue;
                if (field.size() < 8) damaged(entry.name, "its zip64 field is cut short");
                *number = load<std::uint64_t>(field, 0);
                field.remove_prefix(8);
            }
            return;
        }
    }

    // Local headers, data and descriptors end where the directory starts.
    void find_data(ZipEntry& entry, std::size_t limit) const {
        if (entry.offset > limit || limit - entry.offset < LocalHeaderSize ||
            !signature_at(bytes_, static_cast<std::size_t>(entry.offset), ZipLocalSignature)) {
            damaged(entry.name, "its place in the zip archive holds something else");
        }
        const auto at = static_cast<std::size_t>(entry.offset);
        const std::size_t header_size = LocalHeaderSize + std::size_t{load<std::uint16_t>(bytes_, at + 26)} +
                                        std::size_t{load<std::uint16_t>(bytes_, at + 28)};
        if (limit - at < header_size || limit - at - header_size < entry.packed_size) {
            damaged(entry.name, "its data is cut short");
        }
        entry.local = bytes_.substr(at, header_size);
        entry.packed = bytes_.substr(at + header_size, static_cast<std::size_t>(entry.packed_size));
        const std::size_t data_end = at + header_size + entry.packed.size();
        entry.descriptor = find_descriptor(entry, bytes_.substr(data_end, limit - data_end));
    }

    // The signature is optional and the sizes take four or eight bytes; only the values tell which form it is.
    static std::string_view find_descriptor(const ZipEntry& entry, std::string_view behind) {
        if ((load<std::uint16_t>(entry.local, 6) & ZipFlagDescriptor) == 0) return {};
        const std::size_t start = signature_at(behind, 0, ZipDescriptorSignature) ? 4 : 0;
        if (behind.size() >= start + 12 && load<std::uint32_t>(behind, start) == entry.crc) {
            if (behind.size() >= start + 20 && load<std::uint64_t>(behind, start + 4) == entry.packed_size &&
                load<std::uint64_t>(behind, start + 12) == entry.size) {
                return behind.substr(0, start + 20);
            }
            if (load<std::uint32_t>(behind, start + 4) == entry.packed_size &&
                load<std::uint32_t>(behind, start + 8) == entry.size) {
                return behind.substr(0, start + 12);
            }
        }
        return {};
    }

    void refuse_overlaps(const std::vector<ZipEntry>& entries) const {
        std::vector<const ZipEntry*> order;
        order.reserve(entries.size());
        for (const ZipEntry& entry : entries) order.push_back(&entry);
        std::sort(order.begin(), order.end(), [](auto* a, auto* b) { return a->offset < b->offset; });
        for (std::size_t i = 1; i < order.size(); ++i) {
            const ZipEntry& before = *order[i - 1];
            if (before.offset + before.local.size() + before.packed.size() > order[i]->offset) {
                damaged(order[i]->name, "it shares its bytes with " + std::string(before.name));
            }
        }
    }

    std::string_view bytes_;
    const std::string& file_;
};

}  // namespace

ZipDirectory read_zip_directory(std::string_view bytes, const std::string& file) {
    return DirectoryReader(bytes, file).read();
}

std::string extra_without(std::string_view extra, std::uint16_t kind) {
    std::string kept;
    while (extra.size() >= 4) {
        const std::size_t size = std::size_t{4} + load<std::uint16_t>(extra, 2);
        if (extra.size() < size) break;
        if (load<std::uint16_t>(extra, 0) != kind) kept += extra.substr(0, size);
        extra.remove_prefix(size);
    }
    kept += extra;
    return kept;
}

}  // namespace kestrune::host
