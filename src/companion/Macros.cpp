#include "companion/Macros.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "automation/Text.h"
#include "core/iGlobalInterface.h"

namespace kestrune::companion {
namespace {

constexpr auto before_procedures = std::to_array<std::string_view>({"Public ", "Private ", "Friend ", "Static "});
constexpr auto procedure_kinds = std::to_array<std::string_view>({"Sub ", "Function "});

// Cuts the first of the words that the line begins with off it.
template <std::size_t count>
bool cut(std::string_view& line, const std::array<std::string_view, count>& words) {
    const auto found = std::find_if(words.begin(), words.end(), [&](auto word) { return line.starts_with(word); });
    if (found == words.end()) return false;
    line.remove_prefix(found->size());
    return true;
}

// Members that give a result or take arguments, whose macros mDOM.bas has to write out or do without.
constexpr auto not_plain = std::to_array<std::string_view>({"CustomSmartCycleInfo"});

}  // namespace

std::vector<std::string> procedures_of(std::string_view code) {
    std::vector<std::string> names;
    while (!code.empty()) {
        std::string_view line = code.substr(0, code.find('\n'));
        code.remove_prefix(std::min(line.size() + 1, code.size()));
        while (cut(line, before_procedures)) {
        }
        if (cut(line, procedure_kinds)) names.emplace_back(line.substr(0, line.find_first_of("( \r")));
    }
    return names;
}

std::string member_macros(std::string_view code) {
    const std::vector<std::string> written = procedures_of(code);
    std::string out;
    for (const std::string_view member : core::iglobal_interface) {
        const auto is_member = [&](std::string_view name) { return automation::same_text(name, member); };
        if (std::any_of(written.begin(), written.end(), is_member)) continue;
        if (std::any_of(not_plain.begin(), not_plain.end(), is_member)) continue;
        out += fmt::format("\r\nPublic Sub {0}()\r\n    Forward \"{0}\"\r\nEnd Sub\r\n", member);
    }
    return out;
}

}  // namespace kestrune::companion
