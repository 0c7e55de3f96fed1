#include <fmt/format.h>

#include <optional>

#include "vba/Bytes.h"
#include "vba/Compression.h"
#include "vba/DirRecords.h"
#include "vba/Names.h"
#include "vba/Project.h"
#include "vba/ProjectProtection.h"

namespace kestrune::vba {
namespace {

struct Listed {
    std::string name;
    std::string stream;
    std::uint32_t offset = 0;
    bool standard = false;
};

struct Directory {
    std::string name;
    std::string description;
    std::uint32_t major = 0;
    std::uint16_t minor = 0;
    std::vector<Listed> modules;
};

Directory read_directory(std::string_view bytes) {
    Directory directory;
    std::optional<Listed> module;
    const auto current = [&]() -> Listed& {
        if (!module) throw VbaError("the project's directory tells of a module before it names one");
        return *module;
    };
    for (Reader in(bytes);;) {
        const auto id = static_cast<DirRecord>(in.u16());
        const std::uint32_t length = in.u32();
        if (id == DirRecord::Version) {
            directory.major = in.u32();
            directory.minor = in.u16();
            continue;
        }
        const std::string_view data = in.take(length);
        switch (id) {
            case DirRecord::Name:
                directory.name = data;
                break;
            case DirRecord::Description:
                directory.description = data;
                break;
            case DirRecord::ModuleName:
                module = Listed{.name = std::string(data), .stream = std::string(data)};
                break;
            case DirRecord::ModuleStream:
                current().stream = data;
                break;
            case DirRecord::ModuleOffset:
                current().offset = Reader(data).u32();
                break;
            case DirRecord::ModuleStandard:
                current().standard = true;
                break;
            case DirRecord::ModuleTerminator:
                directory.modules.push_back(current());
                module.reset();
                break;
            case DirRecord::Terminator:
                return directory;
            default:
                break;
        }
    }
}

// The lines KEY=VALUE of the PROJECT stream, until its first section.
class ProjectLines {
  public:
    explicit ProjectLines(std::string_view text) {
        while (!text.empty()) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            std::string_view line = text.substr(0, end);
            text.remove_prefix(std::min(end + 1, text.size()));
            if (line.ends_with('\r')) line.remove_suffix(1);
            if (line.starts_with('[')) return;
            const std::size_t equals = line.find('=');
            if (equals == std::string_view::npos) continue;
            std::string_view value = line.substr(equals + 1);
            if (value.size() >= 2 && value.starts_with('"') && value.ends_with('"')) {
                value = value.substr(1, value.size() - 2);
            }
            lines_.emplace_back(line.substr(0, equals), value);
        }
    }
    [[nodiscard]] std::string_view value(std::string_view key) const {
        for (const auto& [name, value] : lines_) {
            if (name == key) return value;
        }
        throw VbaError(fmt::format("the project has no {}", key));
    }
    // Document modules stand as NAME/&H00000000, class modules by their name.
    [[nodiscard]] Module::Kind kind(std::string_view module) const {
        for (const auto& [key, value] : lines_) {
            if (key == "Document" && same_name(value.substr(0, value.find('/')), module)) return Module::Kind::Document;
        }
        return Module::Kind::Class;
    }

  private:
    std::vector<std::pair<std::string_view, std::string_view>> lines_;
};

}  // namespace

Project read_project(const Entry& storage) {
    const Directory directory = read_directory(decompress(storage.stream_at("VBA/dir")));
    const ProjectLines lines(storage.stream_at("PROJECT"));
    Project project{.name = directory.name,
                    .description = directory.description,
                    .id = std::string(lines.value("ID")),
                    .major = directory.major,
                    .minor = directory.minor,
                    .modules = {}};
    for (const char* key : {"CMG", "DPB", "GC"}) unscramble(lines.value(key), project.id);
    for (const Listed& listed : directory.modules) {
        const std::string& stream = storage.stream_at("VBA/" + listed.stream);
        if (listed.offset > stream.size()) throw VbaError("the source of " + listed.name + " lies outside its stream");
        project.modules.push_back({.name = listed.name,
                                   .kind = listed.standard ? Module::Kind::Standard : lines.kind(listed.name),
                                   .code = decompress(std::string_view(stream).substr(listed.offset))});
    }
    return project;
}

}  // namespace kestrune::vba
