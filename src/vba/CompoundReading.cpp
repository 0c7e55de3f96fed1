#include <algorithm>
#include <set>

#include "vba/Bytes.h"
#include "vba/CompoundFile.h"
#include "vba/CompoundLayout.h"
#include "vba/DirectoryName.h"

namespace kestrune::vba {
namespace {

using namespace layout;

constexpr int deepest = 32;  // storages within storages

[[noreturn]] void broken(const std::string& what) { throw VbaError("the compound file is broken: " + what); }

struct Row {
    std::u16string name;
    std::uint8_t type = 0;
    std::uint32_t left = no_stream;
    std::uint32_t right = no_stream;
    std::uint32_t child = no_stream;
    std::uint32_t start = 0;
    std::uint64_t size = 0;
};

class CompoundReader {
  public:
    explicit CompoundReader(std::string_view bytes) : bytes_(bytes) {
        if (!bytes.starts_with(signature)) throw VbaError("the data is no compound file");
        Reader header(bytes, 26);
        const std::uint16_t version = header.u16();
        if (header.u16() != byte_order || (version != 3 && version != 4)) broken("its version is unknown");
        const std::uint16_t shift = header.u16();
        if (shift != (version == 3 ? 9 : 12) || header.u16() != 6) broken("its sectors have another size");
        sector_ = std::size_t{1} << shift;
        header.take(10);
        const std::uint32_t fat_sectors = header.u32();
        const std::uint32_t first_directory = header.u32();
        header.take(4);
        if (header.u32() != mini_stream_cutoff) broken("its short streams are of another size");
        const std::uint32_t first_mini_fat = header.u32();
        header.take(4);
        std::uint32_t more = header.u32();
        header.take(4);

        std::vector<std::uint32_t> places = numbers(header.take(header_fat_sectors * 4));
        std::set<std::uint32_t> seen;
        while (more != end_of_chain && more != free_sector) {
            if (!seen.insert(more).second) broken("its table of sectors runs in a circle");
            std::vector<std::uint32_t> next = numbers(sector(more));
            more = next.back();
            next.pop_back();
            places.insert(places.end(), next.begin(), next.end());
        }
        if (fat_sectors > places.size()) broken("its table of sectors is too short");
        for (std::uint32_t i = 0; i < fat_sectors; ++i) {
            const auto part = numbers(sector(places[i]));
            // More than the file has sectors is a file that names one sector again and again.
            if (fat_.size() > bytes.size() / sector_ + part.size()) broken("its table of sectors is too long");
            fat_.insert(fat_.end(), part.begin(), part.end());
        }
        read_directory(chain(first_directory));
        if (rows_.empty() || rows_[0].type != root_type) broken("it has no root");
        mini_fat_ = numbers(chain(first_mini_fat));
        mini_stream_ = chain(rows_[0].start);
        mini_stream_.resize(std::min<std::uint64_t>(mini_stream_.size(), rows_[0].size));
    }

    Entry root() {
        Entry root = Entry::storage("Root Entry", {});
        add_children(rows_[0].child, root, 0);
        return root;
    }

  private:
    static std::vector<std::uint32_t> numbers(std::string_view bytes) {
        std::vector<std::uint32_t> out;
        for (Reader in(bytes); in.left() >= 4;) out.push_back(in.u32());
        return out;
    }

    [[nodiscard]] std::string_view sector(std::uint32_t number) const {
        const std::uint64_t at = (std::uint64_t{number} + 1) * sector_;
        // The last sector may be cut off at the end of what is used.
        if (at >= bytes_.size()) broken("it names a sector behind its end");
        return bytes_.substr(at, sector_);
    }

    [[nodiscard]] std::string chain(std::uint32_t at) const {
        std::string out;
        for (std::size_t steps = 0; at != end_of_chain && at != free_sector; at = fat_[at]) {
            if (at >= fat_.size()) broken("it names a sector that is in no table");
            if (++steps > fat_.size()) broken("a stream runs in a circle");
            out += sector(at);
        }
        return out;
    }

    [[nodiscard]] std::string mini_chain(std::uint32_t at, std::uint64_t size) const {
        std::string out;
        for (std::size_t steps = 0; out.size() < size; at = mini_fat_[at]) {
            if (at >= mini_fat_.size() || ++steps > mini_fat_.size()) broken("a short stream has no end");
            if ((std::uint64_t{at} + 1) * mini_sector > mini_stream_.size()) broken("a short stream lies outside");
            out += std::string_view(mini_stream_).substr(at * mini_sector, mini_sector);
        }
        return out;
    }

    void read_directory(std::string_view bytes) {
        for (Reader in(bytes); in.left() >= entry_size;) {
            Row row;
            const std::string_view name = in.take(name_bytes);
            const std::uint16_t length = in.u16();
            if (length > name_bytes || length % 2 != 0) broken("a name is too long");
            Reader letters(name);
            for (int i = 0; i + 2 < length; i += 2) row.name += static_cast<char16_t>(letters.u16());
            row.type = in.number<std::uint8_t>();
            in.take(1);
            row.left = in.u32();
            row.right = in.u32();
            row.child = in.u32();
            in.take(36);
            row.start = in.u32();
            row.size = in.number<std::uint64_t>();
            // Version 3 has 32 bits, and some writers leave the others as they were.
            if (sector_ == 512) row.size &= 0xFFFFFFFF;
            rows_.push_back(std::move(row));
        }
        visited_.resize(rows_.size());
    }

    // The tree of siblings from the row on, without recursion: a hostile one is as deep as it has rows.
    void add_children(std::uint32_t at, Entry& storage, int depth) {
        if (depth > deepest) broken("its storages are nested too deep");
        std::vector<std::uint32_t> waiting{at};
        while (!waiting.empty()) {
            at = waiting.back();
            waiting.pop_back();
            if (at == no_stream) continue;
            if (at >= rows_.size()) broken("its directory points outside");
            if (visited_[at]) broken("its directory runs in a circle");
            visited_[at] = true;
            const Row& row = rows_[at];
            waiting.push_back(row.right);
            waiting.push_back(row.left);
            storage.children.push_back(entry_of(row, depth));
        }
        std::sort(storage.children.begin(), storage.children.end(), [](const Entry& a, const Entry& b) {
            return std::is_lt(compare_names(directory_name(a.name), directory_name(b.name)));
        });
        const auto twice =
            std::adjacent_find(storage.children.begin(), storage.children.end(), [](const Entry& a, const Entry& b) {
                return std::is_eq(compare_names(directory_name(a.name), directory_name(b.name)));
            });
        if (twice != storage.children.end()) broken("two entries are called " + twice->name);
    }

    Entry entry_of(const Row& row, int depth) {
        std::string name = from_directory_name(row.name);
        directory_name(name);  // holds it to the rules
        if (row.type == storage_type) {
            Entry storage = Entry::storage(std::move(name), {});
            add_children(row.child, storage, depth + 1);
            return storage;
        }
        if (row.type != stream_type) broken("its directory names what is neither storage nor stream");
        if (row.size > bytes_.size()) broken("a stream is longer than the file");
        std::string bytes = row.size < mini_stream_cutoff ? mini_chain(row.start, row.size) : chain(row.start);
        if (bytes.size() < row.size) broken("a stream is shorter than it says");
        bytes.resize(row.size);
        // Streams that share sectors would make more of a file than it holds.
        read_ += bytes.size();
        if (read_ > bytes_.size()) broken("two streams lie in the same place");
        return Entry::stream(std::move(name), std::move(bytes));
    }

    std::string_view bytes_;
    std::size_t sector_ = 0;
    std::vector<std::uint32_t> fat_;
    std::vector<std::uint32_t> mini_fat_;
    std::string mini_stream_;
    std::vector<Row> rows_;
    std::vector<bool> visited_;
    std::size_t read_ = 0;
};

}  // namespace

const Entry* Entry::find(std::string_view child) const {
    const std::u16string wanted = directory_name(child);
    for (const Entry& entry : children) {
        if (std::is_eq(compare_names(directory_name(entry.name), wanted))) return &entry;
    }
    return nullptr;
}

const std::string& Entry::stream_at(std::string_view path) const {
    const Entry* entry = this;
    for (std::size_t from = 0; entry && from <= path.size();) {
        const std::size_t to = std::min(path.find('/', from), path.size());
        entry = entry->find(path.substr(from, to - from));
        from = to + 1;
    }
    if (!entry || entry->is_storage) throw VbaError("the compound file has no stream " + std::string(path));
    return entry->bytes;
}

Entry read_compound(std::string_view bytes) { return CompoundReader(bytes).root(); }

}  // namespace kestrune::vba
