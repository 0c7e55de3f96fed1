#pragma once

#include <string>

#include "host/model/Sheet.h"
#include "host/xlsx/XmlElement.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// Reads one child of a worksheet besides its cells: view, standard sizes, columns, protection, merges, conditional
// formats, tab colour and outline. Children of other kinds are left alone.
void read_sheet_child(const Package& package, const std::string& part, const XmlElement& child, Sheet& sheet);

}  // namespace kestrune::host
