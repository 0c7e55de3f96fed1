#include <fmt/format.h>

#include "vba/Names.h"
#include "vba/Project.h"
#include "vba/VbaError.h"

namespace kestrune::vba {
namespace {

constexpr std::string_view name_attribute = "Attribute VB_Name = \"";
constexpr std::size_t longest_line = 1023;  // Visual Basic's own bound

void check_line(std::string_view line, std::string_view file, std::size_t number) {
    for (const char c : line) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 || (byte < 0x20 && c != '\t')) {
            throw VbaError(fmt::format("{}, line {}: a character is not ASCII", file, number));
        }
    }
    if (line.size() > longest_line) {
        throw VbaError(fmt::format("{}, line {}: longer than {} characters", file, number, longest_line));
    }
}

}  // namespace

Module module_of_file(std::string_view text, Module::Kind kind, std::string_view file) {
    Module module{.name = {}, .kind = kind, .code = {}};
    bool in_header = text.starts_with("VERSION ");
    std::size_t number = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        check_line(line, file, ++number);
        if (in_header) {
            in_header = line != "END";
            continue;
        }
        if (line.starts_with(name_attribute) && line.ends_with('"')) {
            module.name = line.substr(name_attribute.size(), line.size() - name_attribute.size() - 1);
        }
        module.code.append(line).append("\r\n");
    }
    if (!is_identifier(module.name)) {
        throw VbaError(fmt::format("{}: no line Attribute VB_Name = \"...\" gives it a name of Visual Basic", file));
    }
    return module;
}

}  // namespace kestrune::vba
