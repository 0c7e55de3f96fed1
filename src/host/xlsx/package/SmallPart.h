#pragma once

#include <string_view>

#include "host/xlsx/package/Package.h"
#include "host/xlsx/package/XmlTree.h"

namespace kestrune::host {

/// A part of at most 256 MB as a tree with everything in it that a writer has to give back, see parse_xml_tree;
/// write_small_part makes text of it again. Large parts (sheets, shared strings) are for a streaming parser over
/// Package::read_xml.
pugi::xml_document parse_small_part(const Package& package, std::string_view name);

}  // namespace kestrune::host
