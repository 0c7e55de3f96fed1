#pragma once

#include <string>
#include <string_view>

namespace kestrune::host {

/// One arrow from a part, or from the package itself, to a part or to something outside (ECMA-376 part 2, clause 9.3).
struct Relationship {
    std::string id;
    std::string type;       ///< the whole type URI
    std::string target;     ///< internal: the part's name from the root, "xl/styles.xml"; external: as written
    std::string written;    ///< the Target attribute as it stands in the file, with its fragment
    bool external = false;  ///< TargetMode="External"

    /// Whether the type is `kind` ("worksheet", "styles", "officeDocument" ...) of the office document relationships,
    /// in the transitional or the strict namespace.
    bool is(std::string_view kind) const;
    /// Whether the type is written in the strict namespace.
    bool is_strict() const;
};

/// The namespace that new relationship types start with; the strict one for packages that are written strictly.
inline constexpr std::string_view TransitionalRelationships =
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
inline constexpr std::string_view StrictRelationships = "http://purl.oclc.org/ooxml/officeDocument/relationships/";

}  // namespace kestrune::host
