#pragma once

#include <string>
#include <string_view>

#include "host/model/StyleTable.h"
#include "host/xlsx/XmlElement.h"

namespace kestrune::host {

// The pieces of cell formats as styles.xml spells them (ECMA-376 18.8). What reading does not know it keeps as XML in
// `extra`; writing gives it back. Everything written stands under a prefix ("" or "x:").

[[nodiscard]] Font read_font(const XmlElement& element);
[[nodiscard]] Fill read_fill(const XmlElement& element);
[[nodiscard]] Border read_border(const XmlElement& element);
[[nodiscard]] CellFormat read_cell_format(const XmlElement& xf);
[[nodiscard]] DifferentialFormat read_differential(const XmlElement& dxf);

void append_font(std::string& out, std::string_view prefix, const Font& font);
void append_fill(std::string& out, std::string_view prefix, const Fill& fill);
void append_border(std::string& out, std::string_view prefix, const Border& border);
// `parent` is the named style's own format: only what differs from it is marked as applied.
void append_cell_format(std::string& out, std::string_view prefix, const CellFormat& format, const CellFormat& parent);
// `number_format` is the number that stands for the differential's code, where it has one.
void append_differential(std::string& out, std::string_view prefix, const DifferentialFormat& format,
                         std::uint32_t number_format);

}  // namespace kestrune::host
