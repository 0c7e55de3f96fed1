#include <fmt/format.h>

#include <concepts>

#include "vba/Bytes.h"
#include "vba/Compression.h"
#include "vba/DirRecords.h"
#include "vba/Names.h"
#include "vba/Project.h"
#include "vba/ProjectProtection.h"

namespace kestrune::vba {
namespace {

constexpr std::uint32_t windows_32 = 1;  // both widths read it; it is where the project was made
constexpr std::uint32_t us_english = 0x0409;
constexpr std::uint16_t latin_1 = 1252;
constexpr std::uint16_t no_cookie = 0xFFFF;
// Says that no compiled code follows, whichever Visual Basic looks at it ([MS-OVBA] 2.3.4.1).
constexpr std::string_view no_cache("\xCC\x61\xFF\xFF\0\0\0", 7);
constexpr std::string_view not_protected("\0\0\0\0", 4);
constexpr std::string_view no_password("\0", 1);
constexpr std::string_view visible("\xFF", 1);
constexpr std::uint8_t protection_seed = 0x4B;

std::string unicode(std::string_view text) {
    std::string out;
    for (const char c : text) put(out, static_cast<std::uint16_t>(static_cast<unsigned char>(c)));
    return out;
}

void record(std::string& out, DirRecord id, std::string_view data) {
    put(out, static_cast<std::uint16_t>(id));
    put(out, static_cast<std::uint32_t>(data.size()));
    out += data;
}

template <std::unsigned_integral Number>
void record(std::string& out, DirRecord id, Number number) {
    std::string data;
    put(data, number);
    record(out, id, data);
}

void record(std::string& out, DirRecord id, DirRecord unicode_id, std::string_view text) {
    record(out, id, text);
    record(out, unicode_id, unicode(text));
}

void module_records(std::string& out, const Module& module) {
    record(out, DirRecord::ModuleName, DirRecord::ModuleNameUnicode, module.name);
    record(out, DirRecord::ModuleStream, DirRecord::ModuleStreamUnicode, module.name);
    record(out, DirRecord::ModuleDescription, DirRecord::ModuleDescriptionUnicode, "");
    record(out, DirRecord::ModuleOffset, std::uint32_t{0});  // of the source, behind compiled code
    record(out, DirRecord::ModuleHelpContext, std::uint32_t{0});
    record(out, DirRecord::ModuleCookie, no_cookie);
    record(out, module.kind == Module::Kind::Standard ? DirRecord::ModuleStandard : DirRecord::ModuleOther, "");
    record(out, DirRecord::ModuleTerminator, "");
}

std::string dir_stream(const Project& project) {
    std::string out;
    record(out, DirRecord::SystemKind, windows_32);
    record(out, DirRecord::Lcid, us_english);
    record(out, DirRecord::LcidInvoke, us_english);
    record(out, DirRecord::CodePage, latin_1);
    record(out, DirRecord::Name, project.name);
    record(out, DirRecord::Description, DirRecord::DescriptionUnicode, project.description);
    record(out, DirRecord::HelpFile, "");
    record(out, DirRecord::HelpFileAgain, "");
    record(out, DirRecord::HelpContext, std::uint32_t{0});
    record(out, DirRecord::LibraryFlags, std::uint32_t{0});
    put(out, static_cast<std::uint16_t>(DirRecord::Version));
    put(out, std::uint32_t{4});
    put(out, project.major);
    put(out, project.minor);
    record(out, DirRecord::Constants, DirRecord::ConstantsUnicode, "");
    record(out, DirRecord::Modules, static_cast<std::uint16_t>(project.modules.size()));
    record(out, DirRecord::Cookie, no_cookie);
    for (const Module& module : project.modules) module_records(out, module);
    record(out, DirRecord::Terminator, "");
    return out;
}

std::string project_stream(const Project& project) {
    std::string out = fmt::format("ID=\"{}\"\r\n", project.id);
    for (const Module& module : project.modules) {
        switch (module.kind) {
            case Module::Kind::Standard:
                out += fmt::format("Module={}\r\n", module.name);
                break;
            case Module::Kind::Class:
                out += fmt::format("Class={}\r\n", module.name);
                break;
            case Module::Kind::Document:
                out += fmt::format("Document={}/&H00000000\r\n", module.name);
                break;
        }
    }
    out += fmt::format("Name=\"{}\"\r\nHelpContextID=\"0\"\r\n", project.name);
    if (!project.description.empty()) out += fmt::format("Description=\"{}\"\r\n", project.description);
    out += "VersionCompatible32=\"393222000\"\r\n";
    const auto protection = [&](std::string_view key, std::string_view data) {
        out += fmt::format("{}=\"{}\"\r\n", key, scramble(data, project.id, protection_seed));
    };
    protection("CMG", not_protected);
    protection("DPB", no_password);
    protection("GC", visible);
    out += "\r\n[Host Extender Info]\r\n&H00000001={3832D640-CF90-11CF-8E43-00A0C911005A};VBE;&H00000000\r\n";
    out += "\r\n[Workspace]\r\n";
    for (const Module& module : project.modules) out += fmt::format("{}=0, 0, 0, 0, C\r\n", module.name);
    return out;
}

std::string names_stream(const Project& project) {
    std::string out;
    for (const Module& module : project.modules) {
        out += module.name;
        out += '\0';
        out += unicode(module.name);
        out.append(2, '\0');
    }
    return out.append(2, '\0');
}

void check(const Project& project) {
    if (!is_identifier(project.name)) throw VbaError("\"" + project.name + "\" cannot name a project");
    for (const char c : project.description) {
        if (c < 0x20 || c == '"') throw VbaError("the project's description holds more than ASCII, or a quote");
    }
    for (std::size_t i = 0; i < project.modules.size(); ++i) {
        const std::string& name = project.modules[i].name;
        if (!is_identifier(name)) throw VbaError("\"" + name + "\" cannot name a module");
        for (std::size_t k = 0; k < i; ++k) {
            if (same_name(project.modules[k].name, name)) throw VbaError("two modules are called " + name);
        }
    }
}

}  // namespace

Entry write_project(const Project& project) {
    check(project);
    std::vector<Entry> streams;
    streams.reserve(project.modules.size() + 2);
    for (const Module& module : project.modules) streams.push_back(Entry::stream(module.name, compress(module.code)));
    streams.push_back(Entry::stream("_VBA_PROJECT", std::string(no_cache)));
    streams.push_back(Entry::stream("dir", compress(dir_stream(project))));
    std::vector<Entry> top;
    top.push_back(Entry::storage("VBA", std::move(streams)));
    top.push_back(Entry::stream("PROJECT", project_stream(project)));
    top.push_back(Entry::stream("PROJECTwm", names_stream(project)));
    return Entry::storage("Root Entry", std::move(top));
}

}  // namespace kestrune::vba
