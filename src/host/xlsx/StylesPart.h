#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/Workbook.h"
#include "host/xlsx/FileNumbers.h"
#include "host/xlsx/package/Package.h"

namespace kestrune::host {

// How much of the style table stands in the file: what lies beyond is added to it.
struct StylesLayout {
    std::uint32_t fonts = 0;
    std::uint32_t fills = 0;
    std::uint32_t borders = 0;
    std::uint32_t named_styles = 0;
    std::uint32_t formats = 0;
    std::uint32_t differentials = 0;
    std::vector<std::uint32_t> number_formats;  // sorted
    // How far the numbers go that formats name, whether there are so many or not.
    std::uint32_t named_fonts = 0;
    std::uint32_t named_fills = 0;
    std::uint32_t named_borders = 0;
};

// Reads styles.xml (ECMA-376 18.8) into a workbook's style table and palette. Every list keeps the positions of the
// file; numbers that lead out of a list read as its first entry.
StylesLayout read_styles(const Package& package, const std::string& part, Workbook& book);

// Whether the part lacks something: formats in use, differential formats, colours.
[[nodiscard]] bool styles_changed(const Workbook& book, const StylesLayout& layout, const FileNumbers& formats);

// The part's text with the formats in use, and what they are made of, at the ends of their lists; everything else stays
// to the byte.
[[nodiscard]] std::string write_styles(std::string text, Workbook& book, const StylesLayout& layout,
                                       const FileNumbers& formats);

// A styles part without an entry, for files that have none.
[[nodiscard]] std::string empty_styles(bool strict);

}  // namespace kestrune::host
