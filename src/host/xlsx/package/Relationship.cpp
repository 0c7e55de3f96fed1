#include "host/xlsx/package/Relationship.h"

namespace kestrune::host {

bool Relationship::is(std::string_view kind) const {
    const std::string_view rest = type;
    for (const std::string_view space : {TransitionalRelationships, StrictRelationships}) {
        if (rest.starts_with(space)) return rest.substr(space.size()) == kind;
    }
    return false;
}

bool Relationship::is_strict() const { return type.starts_with(StrictRelationships); }

}  // namespace kestrune::host
