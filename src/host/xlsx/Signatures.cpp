#include "host/xlsx/Signatures.h"

#include <set>
#include <string>

namespace kestrune::host {
namespace {

constexpr std::string_view kinds = "http://schemas.openxmlformats.org/package/2006/relationships/digital-signature/";

void collect(const Package& package, const std::string& part, std::set<std::string>& parts) {
    if (!package.has(part) || !parts.insert(part).second) return;
    for (const Relationship& next : package.relationships(part))
        if (!next.external && next.type.starts_with(kinds)) collect(package, next.target, parts);
}

}  // namespace

bool is_signed(const Package& package) {
    for (const Relationship& relationship : package.relationships({}))
        if (relationship.type.starts_with(kinds)) return true;
    return false;
}

void remove_signatures(Package& package) {
    std::set<std::string> parts;
    for (const Relationship& relationship : package.relationships({})) {
        if (!relationship.type.starts_with(kinds)) continue;
        if (!relationship.external) collect(package, relationship.target, parts);
        package.remove_relationship({}, relationship.id);
    }
    for (const std::string& part : parts) package.remove(part);
}

}  // namespace kestrune::host
