#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/ConditionalFormat.h"
#include "host/xlsx/TextEdits.h"

namespace kestrune::host {

// <conditionalFormatting> (ECMA-376 18.3.1.18), of the sheet's own list and of its extension list (x14). Nothing when
// its areas cannot be read.
[[nodiscard]] std::optional<ConditionalFormat> read_conditional_format(const XmlElement& element);
[[nodiscard]] std::optional<ConditionalFormat> read_extension_format(const XmlElement& element);

// The extension's <x14:conditionalFormattings> in a sheet's <extLst>; no element when it has none.
[[nodiscard]] XmlElement extension_formats(const XmlElement& extension_list);

// Brings an element in line with what it has become; equal ones stay to the byte.
void edit_conditional_format(TextEdits& edits, const XmlElement& element, const ConditionalFormat& format);
void edit_extension_format(TextEdits& edits, const XmlElement& element, const ConditionalFormat& format);

// Whether a format is what became of the one that this element held.
[[nodiscard]] bool same_origin(const ConditionalFormat& in_file, const ConditionalFormat& format);

void append_conditional_format(std::string& out, std::string_view prefix, const ConditionalFormat& format);

}  // namespace kestrune::host
