#include <algorithm>
#include <array>
#include <numeric>

#include "vba/Bytes.h"
#include "vba/CompoundFile.h"
#include "vba/CompoundLayout.h"
#include "vba/DirectoryName.h"

namespace kestrune::vba {
namespace {

using namespace layout;

constexpr std::size_t sector = 512;
constexpr std::uint8_t black = 1;

struct Row {
    std::u16string name;
    std::uint8_t type = 0;
    std::uint32_t left = no_stream;
    std::uint32_t right = no_stream;
    std::uint32_t child = no_stream;
    std::uint32_t start = 0;
    std::uint32_t size = 0;
    const Entry* entry = nullptr;
};

void pad(std::string& bytes, std::size_t unit) { bytes.resize((bytes.size() + unit - 1) / unit * unit); }

// The directory's rows; siblings hang below each other as a search tree. A tree whose nodes are all black keeps the
// rules of [MS-CFB] 2.6.4, balanced or not.
class Directory {
  public:
    explicit Directory(const Entry& root) {
        rows.push_back({.name = directory_name("Root Entry"), .type = root_type});
        const std::uint32_t child = add_children(root);
        rows[0].child = child;
    }
    std::vector<Row> rows;

  private:
    std::uint32_t add_children(const Entry& storage) {
        const auto first = static_cast<std::uint32_t>(rows.size());
        for (const Entry& child : storage.children) {
            rows.push_back({.name = directory_name(child.name),
                            .type = child.is_storage ? storage_type : stream_type,
                            .entry = &child});
        }
        std::vector<std::uint32_t> order(storage.children.size());
        std::iota(order.begin(), order.end(), first);
        std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
            return std::is_lt(compare_names(rows[a].name, rows[b].name));
        });
        for (std::size_t i = 1; i < order.size(); ++i) {
            if (std::is_eq(compare_names(rows[order[i - 1]].name, rows[order[i]].name))) {
                throw VbaError("two streams are called " + rows[order[i]].entry->name);
            }
        }
        for (const std::uint32_t at : order) {
            if (!rows[at].entry->is_storage) continue;
            const std::uint32_t child = add_children(*rows[at].entry);
            rows[at].child = child;
        }
        return hang(order, 0, order.size());
    }
    std::uint32_t hang(const std::vector<std::uint32_t>& order, std::size_t from, std::size_t to) {
        if (from == to) return no_stream;
        const std::size_t middle = from + (to - from) / 2;
        Row& row = rows[order[middle]];
        row.left = hang(order, from, middle);
        row.right = hang(order, middle + 1, to);
        return order[middle];
    }
};

// Runs of sectors and the table that chains them.
struct Chains {
    explicit Chains(std::size_t size) : unit(size) {}

    // The first sector of a run that holds the bytes; the end of a chain for none.
    std::uint32_t add(std::string_view run) {
        if (run.empty()) return end_of_chain;
        const auto first = static_cast<std::uint32_t>(next.size());
        bytes += run;
        pad(bytes, unit);
        while (next.size() < bytes.size() / unit) next.push_back(static_cast<std::uint32_t>(next.size()) + 1);
        next.back() = end_of_chain;
        return first;
    }

    std::size_t unit;
    std::string bytes;
    std::vector<std::uint32_t> next;
};

std::string table(const std::vector<std::uint32_t>& numbers) {
    std::string out;
    for (const std::uint32_t number : numbers) put(out, number);
    out.append((sector - out.size() % sector) % sector, '\xFF');  // free sectors
    return out;
}

std::string directory_stream(const std::vector<Row>& rows) {
    std::string out;
    for (const Row& row : rows) {
        const std::size_t end = out.size() + name_bytes;
        for (const char16_t c : row.name) put(out, static_cast<std::uint16_t>(c));
        out.resize(end);
        put(out, static_cast<std::uint16_t>((row.name.size() + 1) * 2));
        put(out, row.type);
        put(out, black);
        for (const std::uint32_t number : {row.left, row.right, row.child}) put(out, number);
        out.append(36, '\0');  // class, state and times
        put(out, row.start);
        put(out, std::uint64_t{row.size});
    }
    // What is left of the last sector are entries of no type, which point nowhere.
    while (out.size() % sector != 0) {
        out.append(68, '\0').append(12, '\xFF').append(48, '\0');
    }
    return out;
}

}  // namespace

std::string write_compound(const Entry& root) {
    Directory directory(root);
    Chains mini(mini_sector);
    Chains big(sector);
    for (Row& row : directory.rows) {
        if (row.type != stream_type) continue;
        const std::string& bytes = row.entry->bytes;
        row.size = static_cast<std::uint32_t>(bytes.size());
        row.start = (bytes.size() < mini_stream_cutoff ? mini : big).add(bytes);
    }
    Row& root_row = directory.rows.front();
    root_row.size = static_cast<std::uint32_t>(mini.bytes.size());
    root_row.start = big.add(mini.bytes);
    const std::uint32_t mini_fat = big.add(table(mini.next));
    const std::uint32_t first_directory = big.add(directory_stream(directory.rows));

    // The table lies in sectors that it chains itself.
    constexpr std::size_t numbers = sector / sizeof(std::uint32_t);
    std::size_t fat_sectors = 0;
    while (fat_sectors * numbers < big.next.size() + fat_sectors) ++fat_sectors;
    if (fat_sectors > header_fat_sectors) throw VbaError("a compound file of more than 7 MB is not written here");
    const auto first_fat = static_cast<std::uint32_t>(big.next.size());
    big.next.insert(big.next.end(), fat_sectors, fat_sector);

    std::string out(signature);
    out.append(16, '\0');
    for (const std::uint16_t number :
         {minor_version, std::uint16_t{3}, byte_order, std::uint16_t{9}, std::uint16_t{6}}) {
        put(out, number);
    }
    out.append(10, '\0');  // reserved, and the count of directory sectors, which version 3 leaves at 0
    put(out, static_cast<std::uint32_t>(fat_sectors));
    put(out, first_directory);
    put(out, std::uint32_t{0});
    put(out, mini_stream_cutoff);
    put(out, mini_fat);
    put(out, static_cast<std::uint32_t>((mini.next.size() + numbers - 1) / numbers));
    put(out, end_of_chain);
    put(out, std::uint32_t{0});
    for (std::uint32_t i = 0; i < header_fat_sectors; ++i) put(out, i < fat_sectors ? first_fat + i : free_sector);
    return out + big.bytes + table(big.next);
}

}  // namespace kestrune::vba
