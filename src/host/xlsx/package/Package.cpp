#include "host/xlsx/package/Package.h"

#include <fmt/format.h>

#include <algorithm>
#include <deque>
#include <future>
#include <optional>
#include <thread>
#include <unordered_map>
#include <utility>

#include "host/xlsx/package/AtomicFile.h"
#include "host/xlsx/package/ContentTypes.h"
#include "host/xlsx/package/Deflate.h"
#include "host/xlsx/package/FileBytes.h"
#include "host/xlsx/package/PartName.h"
#include "host/xlsx/package/Refusals.h"
#include "host/xlsx/package/RelationshipPart.h"
#include "host/xlsx/package/XmlTree.h"
#include "host/xlsx/package/ZipDirectory.h"
#include "host/xlsx/package/ZipWriter.h"

namespace kestrune::host {
namespace {

constexpr std::size_t NoPart = static_cast<std::size_t>(-1);
constexpr std::string_view PackageRelationships = "_rels/.rels";
// Below this a thread costs more than the deflating.
constexpr std::size_t BackgroundFrom = std::size_t{256} << 10;

using Packing = std::shared_future<PackedPart>;

struct Item {
    std::optional<ZipEntry> original;  // nothing for a part that was added
    Packing packing;                   // valid for what was added or replaced
    std::size_t part = NoPart;         // position in `parts`; folders have none
};

PackedView view_of(const PackedPart& packed) { return {packed.data, packed.size, packed.crc, packed.method}; }
PackedView view_of(const ZipEntry& entry) { return {entry.packed, entry.size, entry.crc, entry.method}; }

bool is_folder(std::string_view name) { return name.ends_with('/') || name.ends_with('\\') || name.empty(); }

}  // namespace

struct Package::State {
    std::string file;
    std::string bytes;  // as read; the entries point into it
    std::string_view comment;
    std::vector<Item> items;  // in the order of the file
    std::vector<PartInfo> parts;
    std::unordered_map<std::string, std::size_t> item_of;  // by part_key
    ContentTypes content_types;
    bool rearranged = false;  // a part was added or removed
    std::deque<Packing> in_background;

    [[noreturn]] void fail(std::string_view part, std::string message) const {
        throw PackageError(file, std::string(part), std::move(message));
    }

    void load() {
        refuse_other_files(bytes, file);
        const ZipDirectory directory = read_zip_directory(bytes, file);
        refuse_unsafe_entries(directory, file);
        comment = directory.comment;
        items.reserve(directory.entries.size());
        for (const ZipEntry& entry : directory.entries) {
            Item item;
            item.original = entry;
            if (is_folder(entry.name)) {
                items.push_back(std::move(item));
            } else {
                insert(std::move(item), std::string(entry.name), entry.size);
            }
        }
        load_content_types();
    }

    void load_content_types() {
        if (find(ContentTypesPart) == nullptr) {
            if (const Item* type = find("mimetype"); type != nullptr && is_open_document(read(*type, "mimetype"))) {
                fail("", "is an OpenDocument spreadsheet: only .xlsx and .xlsm are read");
            }
            fail("", "is a zip archive, but not a workbook: [Content_Types].xml is missing");
        }
        content_types = ContentTypes(tree(ContentTypesPart));
    }

    void insert(Item item, std::string_view name, std::uint64_t size) {
        std::optional<std::string> normal = normal_part_name(name);
        if (!normal) fail(name, "leads out of the package");
        if (!item_of.emplace(lower_case(*normal), items.size()).second) fail(*normal, "is in the package twice");
        item.part = parts.size();
        parts.push_back({std::move(*normal), size});
        items.push_back(std::move(item));
    }

    const Item* find(std::string_view name) const {
        const auto found = item_of.find(part_key(name));
        return found == item_of.end() ? nullptr : &items[found->second];
    }

    const Item& at(std::string_view name) const {
        const Item* item = find(name);
        if (item == nullptr) fail(name, "is missing");
        return *item;
    }

    std::string read(const Item& item, std::string_view name, bool original = false) const {
        if (!item.packing.valid() || (original && item.original)) {
            return inflate_part(view_of(*item.original), file, name);
        }
        const Packing packing = item.packing;  // a copy: one shared_future is not for several threads
        return inflate_part(view_of(packing.get()), file, name);
    }

    void refuse_beyond(std::uint64_t limit, std::uint64_t size, std::string_view name) const {
        if (size <= limit) return;
        fail(name, fmt::format("holds {} MiB, and {} MiB is the limit here", size >> 20, limit >> 20));
    }

    pugi::xml_document tree(std::string_view name) const {
        return parse_xml_tree(xml_text_of(read(at(name), name), file, name).text, file, name);
    }

    // Equal checksums are not yet equal bytes.
    bool same_as_original(const Item& item, std::string_view name, std::string_view new_bytes) const {
        return item.original && item.original->size == new_bytes.size() && item.original->crc == crc_of(new_bytes) &&
               inflate_part(view_of(*item.original), file, name) == new_bytes;
    }

    Packing pack(std::string new_bytes) {
        const bool large = new_bytes.size() >= BackgroundFrom;
        auto work = [b = std::move(new_bytes)]() mutable { return deflate_part(std::move(b)); };
        if (!large) return std::async(std::launch::deferred, std::move(work));
        while (in_background.size() >= std::max(2U, std::thread::hardware_concurrency())) {
            in_background.front().wait();
            in_background.pop_front();
        }
        // Deferred is what is left when the system has no more threads.
        in_background.emplace_back(std::async(std::launch::async | std::launch::deferred, std::move(work)));
        return in_background.back();
    }

    void replace(std::string_view name, std::string new_bytes) {
        Item& item = items[item_index(name)];
        parts[item.part].size = new_bytes.size();
        item.packing = same_as_original(item, name, new_bytes) ? Packing() : pack(std::move(new_bytes));
    }

    std::size_t item_index(std::string_view name) const { return static_cast<std::size_t>(&at(name) - items.data()); }

    void add(std::string_view name, std::string new_bytes) {
        if (find(name) != nullptr) fail(name, "exists already");
        const std::uint64_t size = new_bytes.size();
        Item item;
        item.packing = pack(std::move(new_bytes));
        insert(std::move(item), name, size);
        rearranged = true;
    }

    void remove(std::string_view name) {
        const std::size_t gone = item_index(name);
        const std::size_t part = items[gone].part;
        item_of.erase(part_key(name));
        items.erase(items.begin() + static_cast<std::ptrdiff_t>(gone));
        parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(part));
        for (auto& [key, index] : item_of) index -= index > gone ? 1 : 0;
        for (Item& item : items) item.part -= item.part != NoPart && item.part > part ? 1 : 0;
        rearranged = true;
    }

    void write_content_types() { replace(ContentTypesPart, content_types.text()); }

    RelationshipPart relationship_part(std::string_view part) const {
        const std::string name = relationship_part_of(part);
        return find(name) == nullptr ? RelationshipPart() : RelationshipPart(tree(name));
    }

    void resolve(Relationship& row, std::string_view part) const {
        if (row.external) {
            row.target = row.written;
            return;
        }
        std::optional<std::string> target = resolve_reference(part, row.written);
        if (!target) {
            fail(relationship_part_of(part), fmt::format("{} leads out of the package: {}", row.id, row.written));
        }
        const Item* item = find(*target);
        if (item == nullptr) item = find(percent_decoded(*target));
        row.target = item == nullptr ? *target : parts[item->part].name;
    }
};

Package::Package(std::unique_ptr<State> state) : state_(std::move(state)) {}
Package::Package(Package&&) noexcept = default;
Package& Package::operator=(Package&&) noexcept = default;
Package::~Package() = default;

Package Package::open(const std::string& path) { return from_bytes(read_file(path), path); }

Package Package::from_bytes(std::string bytes, std::string name) {
    auto state = std::make_unique<State>();
    state->file = std::move(name);
    state->bytes = std::move(bytes);
    state->load();
    Package package(std::move(state));
    package.kind();
    return package;
}

Package Package::create(std::string name) {
    auto state = std::make_unique<State>();
    state->file = std::move(name);
    state->add(ContentTypesPart, state->content_types.text());
    return Package(std::move(state));
}

const std::string& Package::file() const { return state_->file; }

PackageKind Package::kind() const {
    const std::string main = workbook_part();
    return kind_of_main_part(state_->content_types.of(main), state_->file, main);
}

std::string Package::workbook_part() const {
    Relationship main = relationship("", "officeDocument");
    if (main.id.empty() && main.target.empty()) {
        state_->fail(PackageRelationships, "tells no workbook part: an officeDocument relationship is missing");
    }
    if (main.external || !has(main.target)) state_->fail(main.target, "is the workbook part, and it is missing");
    return std::move(main.target);
}

bool Package::is_strict() const { return relationship("", "officeDocument").is_strict(); }

const std::vector<PartInfo>& Package::parts() const { return state_->parts; }

bool Package::has(std::string_view name) const { return state_->find(name) != nullptr; }

std::string Package::read(std::string_view name) const { return state_->read(state_->at(name), name); }

XmlText Package::read_xml(std::string_view name, std::uint64_t limit) const {
    const Item& item = state_->at(name);
    state_->refuse_beyond(limit, state_->parts[item.part].size, name);
    return xml_text_of(state_->read(item, name), state_->file, name);
}

XmlText Package::read_original_xml(std::string_view name, std::uint64_t limit) const {
    const Item& item = state_->at(name);
    state_->refuse_beyond(limit, item.original ? item.original->size : state_->parts[item.part].size, name);
    return xml_text_of(state_->read(item, name, true), state_->file, name);
}

std::string Package::content_type(std::string_view name) const {
    return has(name) ? state_->content_types.of(name) : std::string();
}

void Package::replace(std::string_view name, std::string bytes) {
    state_->replace(name, std::move(bytes));
    if (part_key(name) == part_key(ContentTypesPart)) {
        state_->content_types = ContentTypes(state_->tree(ContentTypesPart));
    }
}

void Package::add(std::string_view name, std::string_view content_type, std::string bytes) {
    state_->add(name, std::move(bytes));
    set_content_type(name, content_type);
}

void Package::remove(std::string_view name) {
    state_->remove(name);
    if (state_->content_types.remove(name)) state_->write_content_types();
    const std::string relationships = relationship_part_of(normal_part_name(name).value_or(std::string()));
    if (has(relationships)) remove(relationships);
}

void Package::set_content_type(std::string_view name, std::string_view content_type) {
    const std::string& spelled = state_->parts[state_->at(name).part].name;
    if (state_->content_types.set(spelled, content_type)) state_->write_content_types();
}

std::vector<Relationship> Package::relationships(std::string_view part) const {
    const std::string source = normal_part_name(part).value_or(std::string());
    std::vector<Relationship> rows = state_->relationship_part(source).rows();
    for (Relationship& row : rows) state_->resolve(row, source);
    return rows;
}

Relationship Package::relationship(std::string_view part, std::string_view kind) const {
    for (Relationship& row : relationships(part)) {
        if (row.is(kind)) return std::move(row);
    }
    return {};
}

std::string Package::add_relationship(std::string_view part, std::string_view type, std::string_view target,
                                      bool external) {
    const std::string source = part.empty() ? std::string() : state_->parts[state_->at(part).part].name;
    RelationshipPart rows = state_->relationship_part(source);
    const std::string reference =
        external ? std::string(target) : reference_between(source, normal_part_name(target).value_or(std::string()));
    std::string id = rows.add(type, reference, external);
    const std::string name = relationship_part_of(source);
    if (has(name)) {
        state_->replace(name, rows.text());
    } else {
        add(name, RelationshipsContentType, rows.text());
    }
    return id;
}

void Package::remove_relationship(std::string_view part, std::string_view id) {
    const std::string source = normal_part_name(part).value_or(std::string());
    const std::string name = relationship_part_of(source);
    RelationshipPart rows = state_->relationship_part(source);
    if (!rows.remove(id)) state_->fail(name, "has no relationship " + std::string(id));
    state_->replace(name, rows.text());
}

bool Package::changed() const {
    return state_->rearranged || std::any_of(state_->items.begin(), state_->items.end(),
                                             [](const Item& item) { return item.packing.valid(); });
}

bool Package::changed(std::string_view name) const { return state_->at(name).packing.valid(); }

void Package::save(const std::string& path) const {
    std::vector<ZipItem> items;
    const bool whole = !changed();
    if (!whole) {
        items.reserve(state_->items.size());
        for (const Item& item : state_->items) {
            ZipItem written;
            written.original = item.original ? &*item.original : nullptr;
            written.packed = item.packing.valid() ? &item.packing.get() : nullptr;
            if (item.part != NoPart) written.name = state_->parts[item.part].name;
            items.push_back(written);
        }
    }
    AtomicFile file(path);
    if (whole) {
        file.write(state_->bytes);
    } else {
        write_zip(items, state_->comment, [&](std::string_view bytes) { file.write(bytes); });
    }
    file.commit();
}

PackageError Package::error(std::string_view part, std::string message, std::size_t line, std::size_t column) const {
    return PackageError(state_->file, std::string(part), std::move(message), line, column);
}

}  // namespace kestrune::host
