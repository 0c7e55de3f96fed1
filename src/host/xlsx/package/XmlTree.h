#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace kestrune::host {

/// UTF-8 text as a tree with comments, processing instructions and white space kept. A document type declaration,
/// broken XML and anything but one root are a PackageError with file, part, line and column (in bytes).
pugi::xml_document parse_xml_tree(std::string_view text, const std::string& file, std::string_view part);

/// The tree as UTF-8 text, nothing indented, a declaration in front: for Package::replace.
std::string write_small_part(const pugi::xml_document& document);

/// The same of a piece of a part: without a declaration.
std::string write_xml_fragment(const pugi::xml_document& document);

/// A name without its namespace prefix: "sheet" for "x:sheet".
std::string_view local_name(std::string_view name);

/// A name for a new child of `parent` in the namespace that the parent itself is in: "x:sheet" below "x:sheets".
std::string sibling_prefixed(const pugi::xml_node& parent, std::string_view name);

}  // namespace kestrune::host
