#include "host/xlsx/package/ZipWriter.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "host/xlsx/package/LittleEndian.h"

namespace kestrune::host {
namespace {

constexpr std::uint16_t Version20 = 20;
constexpr std::uint16_t Version45 = 45;                // zip64
constexpr std::uint32_t EarliestTime = 0x0021u << 16;  // 1 January 1980, midnight
constexpr std::uint64_t Limit32 = 0xFFFFFFFF;
constexpr std::uint64_t Limit16 = 0xFFFF;

std::uint32_t clipped(std::uint64_t number) { return static_cast<std::uint32_t>(std::min(number, Limit32)); }

bool is_ascii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The entry as the new archive's directory tells it; views into the old archive stay valid.
ZipEntry described(const ZipItem& item) {
    ZipEntry entry;
    if (item.original != nullptr) {
        entry = *item.original;
    } else {
        entry.name = item.name;
        entry.time = EarliestTime;
        entry.flags = is_ascii(item.name) ? std::uint16_t{0} : ZipFlagUtf8;
        entry.version_made = Version20;
    }
    if (item.packed != nullptr) {
        entry.flags &= ZipFlagUtf8;
        entry.method = item.packed->method;
        entry.crc = item.packed->crc;
        entry.size = item.packed->size;
        entry.packed_size = item.packed->data.size();
        entry.version_needed = Version20;
    } else if (entry.descriptor.empty()) {
        entry.flags &= static_cast<std::uint16_t>(~ZipFlagDescriptor);
    }
    return entry;
}

std::string zip64_field(std::initializer_list<std::uint64_t> numbers) {
    std::string field;
    append(field, ZipExtra64);
    append(field, static_cast<std::uint16_t>(8 * numbers.size()));
    for (const std::uint64_t number : numbers) append(field, number);
    return field;
}

std::string new_local_header(const ZipEntry& entry) {
    const bool large = entry.size >= Limit32 || entry.packed_size >= Limit32;
    const std::string extra = large ? zip64_field({entry.size, entry.packed_size}) : std::string();
    std::string header;
    append(header, ZipLocalSignature);
    append(header, large ? Version45 : entry.version_needed);
    append(header, entry.flags);
    append(header, entry.method);
    append(header, entry.time);
    append(header, entry.crc);
    append(header, large ? clipped(Limit32) : clipped(entry.packed_size));
    append(header, large ? clipped(Limit32) : clipped(entry.size));
    append(header, static_cast<std::uint16_t>(entry.name.size()));
    append(header, static_cast<std::uint16_t>(extra.size()));
    header += entry.name;
    header += extra;
    return header;
}

// A header that promises a data descriptor where none stands gets its numbers from the directory.
std::string completed_local_header(const ZipEntry& entry) {
    std::string header(entry.local);
    store(header, 6, static_cast<std::uint16_t>(load<std::uint16_t>(header, 6) & ~ZipFlagDescriptor));
    store(header, 14, entry.crc);
    store(header, 18, clipped(entry.packed_size));
    store(header, 22, clipped(entry.size));
    const std::size_t extra_at = 30 + entry.name.size();
    if (load<std::uint16_t>(header, 26) == entry.name.size() && header.size() > extra_at) {
        const std::string extra = extra_without(std::string_view(header).substr(extra_at), ZipExtra64);
        header.replace(extra_at, std::string::npos, extra);
        store(header, 28, static_cast<std::uint16_t>(extra.size()));
    }
    return header;
}

void append_central_header(std::string& directory, const ZipEntry& entry, std::uint64_t offset, bool copied) {
    std::string numbers;
    for (const std::uint64_t number : {entry.size, entry.packed_size, offset}) {
        if (number >= Limit32) append(numbers, number);
    }
    std::string extra;
    if (!numbers.empty()) {
        append(extra, ZipExtra64);
        append(extra, static_cast<std::uint16_t>(numbers.size()));
        extra += numbers;
    }
    if (copied) extra += extra_without(entry.extra, ZipExtra64);
    append(directory, ZipCentralSignature);
    append(directory, entry.version_made);
    append(directory, numbers.empty() ? entry.version_needed : std::max(entry.version_needed, Version45));
    append(directory, entry.flags);
    append(directory, entry.method);
    append(directory, entry.time);
    append(directory, entry.crc);
    append(directory, clipped(entry.packed_size));
    append(directory, clipped(entry.size));
    append(directory, static_cast<std::uint16_t>(entry.name.size()));
    append(directory, static_cast<std::uint16_t>(extra.size()));
    append(directory, static_cast<std::uint16_t>(entry.comment.size()));
    append(directory, std::uint16_t{0});
    append(directory, entry.internal_attributes);
    append(directory, entry.external_attributes);
    append(directory, clipped(offset));
    directory += entry.name;
    directory += extra;
    directory += entry.comment;
}

std::string end_records(std::uint64_t count, std::uint64_t size, std::uint64_t offset, std::string_view comment) {
    std::string end;
    if (count >= Limit16 || size >= Limit32 || offset >= Limit32) {
        append(end, ZipEnd64Signature);
        append(end, std::uint64_t{44});
        append(end, Version45);
        append(end, Version45);
        append(end, std::uint64_t{0});
        for (const std::uint64_t number : {count, count, size, offset}) append(end, number);
        append(end, ZipLocator64Signature);
        append(end, std::uint32_t{0});
        append(end, offset + size);
        append(end, std::uint32_t{1});
    }
    append(end, ZipEndSignature);
    append(end, std::uint32_t{0});
    append(end, static_cast<std::uint16_t>(std::min(count, Limit16)));
    append(end, static_cast<std::uint16_t>(std::min(count, Limit16)));
    append(end, clipped(size));
    append(end, clipped(offset));
    append(end, static_cast<std::uint16_t>(comment.size()));
    end += comment;
    return end;
}

// Positions in `items` in the order in which the data lies in the file.
std::vector<std::size_t> file_order(const std::vector<ZipItem>& items) {
    std::vector<std::size_t> order(items.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const auto offset = [](const ZipItem& item) {
            return item.original != nullptr ? item.original->offset : UINT64_MAX;
        };
        return offset(items[a]) < offset(items[b]);
    });
    return order;
}

}  // namespace

void write_zip(const std::vector<ZipItem>& items, std::string_view comment,
               const std::function<void(std::string_view)>& sink) {
    std::uint64_t position = 0;
    const auto put = [&](std::string_view bytes) {
        sink(bytes);
        position += bytes.size();
    };
    std::vector<std::uint64_t> offsets(items.size());
    for (const std::size_t i : file_order(items)) {
        const ZipEntry entry = described(items[i]);
        offsets[i] = position;
        if (items[i].packed != nullptr) {
            put(new_local_header(entry));
            put(items[i].packed->data);
            continue;
        }
        const bool promised = (load<std::uint16_t>(entry.local, 6) & ZipFlagDescriptor) != 0;
        if (promised && entry.descriptor.empty()) {
            put(completed_local_header(entry));
        } else {
            put(entry.local);
        }
        put(entry.packed);
        put(entry.descriptor);
    }
    std::string directory;
    for (std::size_t i = 0; i < items.size(); ++i) {
        append_central_header(directory, described(items[i]), offsets[i], items[i].packed == nullptr);
    }
    const std::uint64_t start = position;
    put(directory);
    put(end_records(items.size(), directory.size(), start, comment));
}

}  // namespace kestrune::host
