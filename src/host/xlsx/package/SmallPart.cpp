#include "host/xlsx/package/SmallPart.h"

#include <cstdint>

namespace kestrune::host {

pugi::xml_document parse_small_part(const Package& package, std::string_view name) {
    constexpr std::uint64_t Limit = std::uint64_t{256} << 20;
    return parse_xml_tree(package.read_xml(name, Limit).text, package.file(), name);
}

}  // namespace kestrune::host
