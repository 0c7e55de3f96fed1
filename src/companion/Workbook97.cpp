#include "companion/Workbook97.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <vector>

#include "vba/Bytes.h"
#include "vba/CompoundFile.h"
#include "vba/Project.h"

namespace kestrune::companion {
namespace {

using vba::put;
using vba::Reader;
using vba::VbaError;

enum RecordNumber : std::uint16_t {
    end_of_part = 0x000A,
    sheet_place = 0x0085,  // where a sheet's part begins, first of its data
    row_blocks = 0x00D7,   // these two say where rows lie; readers do without
    row_index = 0x020B,
    has_project = 0x00D3,
    strings_index = 0x00FF,  // where shared strings lie, for fast look-up; readers do without
    code_name = 0x01BA,
    begin_of_part = 0x0809,
};
// The first record that follows a code name: in the workbook's part the count of function groups, the protection of
// windows, the window, or the first font, which every file has; in a sheet's the sheet extension or features.
constexpr auto behind_workbook_name = std::to_array<std::uint16_t>({0x009C, 0x0019, 0x003D, 0x0031});
constexpr auto behind_sheet_name = std::to_array<std::uint16_t>({end_of_part, 0x0862, 0x0867, 0x0868});

template <std::size_t count>
bool is_in(const std::array<std::uint16_t, count>& numbers, std::uint16_t number) {
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

struct Record {
    std::uint16_t number = 0;
    std::string data;
};

std::vector<Record> records_of(std::string_view stream) {
    std::vector<Record> records;
    for (Reader in(stream); in.left() > 0;) {
        Record record{.number = in.u16(), .data = {}};
        record.data = in.take(in.u16());
        records.push_back(std::move(record));
    }
    return records;
}

Record code_name_record(std::string_view name) {
    Record record{.number = code_name, .data = {}};
    put(record.data, static_cast<std::uint16_t>(name.size()));
    record.data += '\0';  // one byte a letter
    record.data += name;
    return record;
}

// The records with the names of the modules to which workbook and sheets belong, and the mark that there is a project.
std::vector<Record> with_code_names(const std::vector<Record>& records, const vba::Project& project) {
    std::vector<Record> out;
    std::size_t part = 0;  // the workbook, then its sheets
    bool named = true;
    for (const Record& record : records) {
        switch (record.number) {
            case begin_of_part:
                named = false;
                break;
            case row_blocks:
            case row_index:
            case strings_index:
            case has_project:
            case code_name:
                continue;
            default:
                break;
        }
        const bool here =
            part == 0 ? is_in(behind_workbook_name, record.number) : is_in(behind_sheet_name, record.number);
        if (here && !named) {
            if (part >= project.modules.size() || project.modules[part].kind != vba::Module::Kind::Document) {
                throw VbaError(fmt::format("the project has no module for sheet {}", part));
            }
            if (part == 0) out.push_back({.number = has_project, .data = {}});
            out.push_back(code_name_record(project.modules[part].name));
            named = true;
        }
        out.push_back(record);
        if (record.number == end_of_part) ++part;
    }
    return out;
}

std::string stream_of(const std::vector<Record>& records) {
    std::string out;
    std::vector<std::size_t> places;  // of the sheets' records in the stream
    std::vector<std::size_t> parts;   // where each part begins
    for (const Record& record : records) {
        if (record.number == begin_of_part) parts.push_back(out.size());
        if (record.number == sheet_place) places.push_back(out.size() + 4);
        put(out, record.number);
        put(out, static_cast<std::uint16_t>(record.data.size()));
        out += record.data;
    }
    if (parts.size() != places.size() + 1) throw VbaError("it has parts that are no sheets, or sheets without one");
    for (std::size_t i = 0; i < places.size(); ++i) {
        std::string place;
        put(place, static_cast<std::uint32_t>(parts[i + 1]));
        out.replace(places[i], place.size(), place);
    }
    return out;
}

}  // namespace

std::string with_macros(std::string_view workbook, std::string_view project, std::string_view file) try {
    vba::Entry root = vba::read_compound(workbook);
    vba::Entry storage = vba::read_compound(project);
    const std::string stream =
        stream_of(with_code_names(records_of(root.stream_at("Workbook")), vba::read_project(storage)));
    std::erase_if(root.children, [](const vba::Entry& entry) { return entry.name == "_VBA_PROJECT_CUR"; });
    for (vba::Entry& entry : root.children) {
        if (entry.name == "Workbook") entry.bytes = stream;
    }
    storage.name = "_VBA_PROJECT_CUR";
    root.children.push_back(std::move(storage));
    return vba::write_compound(root);
} catch (const VbaError& error) {
    throw VbaError(fmt::format("{}: {}", file, error.what()));
}

}  // namespace kestrune::companion
