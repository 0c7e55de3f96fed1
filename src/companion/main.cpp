// Makes workbooks' Visual Basic from text, and shows what a workbook has of it.

#include <fmt/format.h>

#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "brvblib/CommandTexts.h"
#include "companion/AddInWorkbook.h"
#include "companion/Files.h"
#include "companion/Macros.h"
#include "companion/Workbook97.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::companion {
namespace {

constexpr const char* usage =
    "usage: kestrune-companion add-in FOLDER TARGET.xlam    the companion workbook, of modules and parts in a folder\n"
    "       kestrune-companion project NAME TARGET.bin MODULE...    a Visual Basic project, of .bas and .cls files\n"
    "       kestrune-companion add-macros WORKBOOK.xls PROJECT.bin TARGET.xls    puts a project into a workbook\n"
    "       kestrune-companion commands                     the commands: number, name, description, key, topic\n"
    "       kestrune-companion list WORKBOOK                its modules and their procedures\n"
    "       kestrune-companion show WORKBOOK MODULE         the text of one\n";

constexpr std::string_view compound_signature = "\xD0\xCF\x11\xE0";

// The project of a workbook of either format, or of a vbaProject.bin alone.
vba::Project project_in(const std::string& file) {
    const std::string bytes = content_of(file);
    if (!bytes.starts_with(compound_signature)) {
        return vba::read_project(vba::read_compound(host::Package::from_bytes(bytes, file).read("xl/vbaProject.bin")));
    }
    const vba::Entry root = vba::read_compound(bytes);
    const vba::Entry* project = root.find("_VBA_PROJECT_CUR");
    return vba::read_project(project ? *project : root);
}

void list(const std::string& file) {
    for (const vba::Module& module : project_in(file).modules) {
        fmt::print("{}\n", module.name);
        for (const std::string& procedure : procedures_of(module.code)) fmt::print("    {}\n", procedure);
    }
}

void show(const std::string& file, std::string_view name) {
    for (const vba::Module& module : project_in(file).modules) {
        if (module.name != name) continue;
        fmt::print("{}", module.code);
        return;
    }
    throw std::runtime_error(fmt::format("{}: has no module {}", file, name));
}

void commands() {
    int number = 0;
    for (const brvblib::CommandText& text : brvblib::command_texts) {
        fmt::print("{}\t{}\t{}\t{}\t{}\n", number++, text.name, text.description, text.key, text.topic);
    }
}

int run(const std::vector<std::string>& arguments) {
    const std::string_view command = arguments.empty() ? std::string_view() : arguments[0];
    if (command == "add-in" && arguments.size() == 3) {
        make_add_in(arguments[1], arguments[2]);
    } else if (command == "project" && arguments.size() > 3) {
        std::vector<vba::Module> modules;
        for (std::size_t i = 3; i < arguments.size(); ++i) modules.push_back(module_of(arguments[i]));
        write_file(arguments[2], vba::write_compound(vba::write_project(project_of(arguments[1], std::move(modules)))));
    } else if (command == "add-macros" && arguments.size() == 4) {
        write_file(arguments[3], with_macros(content_of(arguments[1]), content_of(arguments[2]), arguments[1]));
    } else if (command == "commands" && arguments.size() == 1) {
        commands();
    } else if (command == "list" && arguments.size() == 2) {
        list(arguments[1]);
    } else if (command == "show" && arguments.size() == 3) {
        show(arguments[1], arguments[2]);
    } else {
        fmt::print(stderr, "{}", usage);
        return 2;
    }
    return 0;
}

}  // namespace
}  // namespace kestrune::companion

int main(int argc, char** argv) try {
    return kestrune::companion::run({argv + 1, argv + argc});
} catch (const std::exception& error) {
    fmt::print(stderr, "kestrune-companion: {}\n", error.what());
    return 1;
}
