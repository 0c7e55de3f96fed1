#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>

#include "host/xlsx/package/Package.h"

namespace kestrune::host {

/// A part of at most 256 MB as a tree, with everything in it that a writer has to give back: comments, processing
/// instructions, white space. Document type declarations, broken XML and more than one root are a PackageError with
/// the line. Large parts (sheets, shared strings) are for a streaming parser over Package::read_xml.
pugi::xml_document parse_small_part(const Package& package, std::string_view name);

/// The tree as text with an XML declaration, nothing indented: for Package::replace.
std::string write_small_part(const pugi::xml_document& document);

/// A name without its namespace prefix: "sheet" for "x:sheet".
std::string_view local_name(std::string_view name);

}  // namespace kestrune::host
