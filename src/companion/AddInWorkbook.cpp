#include "companion/AddInWorkbook.h"

#include <fmt/format.h>

#include <array>
#include <stdexcept>

#include "companion/Files.h"
#include "companion/Macros.h"
#include "companion/Ribbon.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::companion {
namespace {

constexpr std::string_view version = KESTRUNE_VERSION;
constexpr std::string_view version_mark = "@VERSION@";
constexpr auto document_bases =
    std::to_array<std::string_view>({"\nAttribute VB_Base = \"0{00020819-", "\nAttribute VB_Base = \"0{00020820-"});

// The workbook's parts: file below parts, name in the package, content type, who refers to it, by which relationship.
struct Part {
    std::string_view file;
    std::string_view name;
    std::string_view content_type;
    std::string_view owner;
    std::string_view relationship;
};

constexpr std::string_view workbook = "xl/workbook.xml";
// clang-format off
constexpr auto parts = std::to_array<Part>({
    {"workbook.xml", workbook, "application/vnd.ms-excel.addin.macroEnabled.main+xml",
     "", "http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument"},
    {"sheet1.xml", "xl/worksheets/sheet1.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml",
     workbook, "http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet"},
    {"styles.xml", "xl/styles.xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml",
     workbook, "http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles"},
    {"core.xml", "docProps/core.xml", "application/vnd.openxmlformats-package.core-properties+xml",
     "", "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties"},
});
// clang-format on

constexpr auto modules = std::to_array<std::string_view>({"ThisWorkbook.cls", "Sheet1.cls", "mDOM.bas"});

}  // namespace

vba::Module module_of(const std::filesystem::path& file) {
    std::string text = content_of(file);
    for (std::size_t at = 0; (at = text.find(version_mark, at)) != std::string::npos;) {
        text.replace(at, version_mark.size(), version);
    }
    vba::Module::Kind kind = vba::Module::Kind::Standard;
    if (file.extension() == ".cls") {
        kind = vba::Module::Kind::Class;
        for (const std::string_view base : document_bases) {
            if (text.find(base) != std::string::npos) kind = vba::Module::Kind::Document;
        }
    } else if (file.extension() != ".bas") {
        throw std::runtime_error(file.string() + ": a module's file is called .bas or .cls");
    }
    return vba::module_of_file(text, kind, file.string());
}

vba::Project project_of(std::string name, std::vector<vba::Module> modules) {
    vba::Project project;
    project.name = std::move(name);
    project.id = "{6E0A5C3B-2D41-4B8E-9F57-1C83A4D7E260}";
    project.modules = std::move(modules);
    return project;
}

void make_add_in(const std::filesystem::path& folder, const std::string& target) {
    std::vector<vba::Module> texts;
    for (const std::string_view file : modules) {
        vba::Module module = module_of(folder / file);
        if (module.name == "mDOM") module.code += member_macros(module.code);
        texts.push_back(std::move(module));
    }
    vba::Project project = project_of("Kestrune", std::move(texts));
    project.description = fmt::format("Kestrune {}", version);

    auto package = host::Package::create(target);
    for (const Part& part : parts) {
        package.add(part.name, part.content_type, content_of(folder / "parts" / part.file));
        package.add_relationship(part.owner, part.relationship, part.name);
    }
    package.add("xl/vbaProject.bin", "application/vnd.ms-office.vbaProject",
                vba::write_compound(vba::write_project(project)));
    package.add_relationship(workbook, "http://schemas.microsoft.com/office/2006/relationships/vbaProject",
                             "xl/vbaProject.bin");
    package.add("customUI/customUI.xml", "application/xml", ribbon_xml(menus::menu_rows()));
    package.add_relationship("", "http://schemas.microsoft.com/office/2006/relationships/ui/extensibility",
                             "customUI/customUI.xml");
    package.save(target);
}

}  // namespace kestrune::companion
