#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/model/RowsAndColumns.h"
#include "host/xlsx/TextEdits.h"

namespace kestrune::host {

// What a row's attributes say of its format (ECMA-376 18.3.1.73).
struct RowXml {
    double default_height = 15;      // points; a height that says no more than this is not kept
    std::uint32_t formats = 0;       // how many cell formats there are: numbers beyond mean the first one
    std::uint32_t* named = nullptr;  // raised to where the numbers go that rows name; null where nobody asks

    // Takes over one attribute, and after the last one finishes.
    void read(RowFormat& format, std::string_view name, std::string_view value) const;
    void finish(RowFormat& format) const;

    [[nodiscard]] RowFormat read(const XmlElement& row) const;

    // The attributes of a new row, each with a space before it.
    static void append(std::string& out, const RowFormat& format);
    // Brings the attributes of a row in line with a format, leaving alone what already says it.
    void edit(TextEdits& edits, const XmlElement& row, const RowFormat& format) const;
};

}  // namespace kestrune::host
