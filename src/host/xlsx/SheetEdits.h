#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "host/model/Sheet.h"
#include "host/xlsx/FileNumbers.h"
#include "host/xlsx/SheetLayout.h"
#include "host/xlsx/TextEdits.h"

namespace kestrune::host {

// The edits that bring a worksheet's other children in line with a sheet, in the order in which they stand.
struct SheetEdits {
    std::string_view text;
    Sheet& sheet;
    const SheetLayout& layout;
    const FileNumbers& formats;
    TextEdits& edits;

    void properties() const;                                 // outline directions
    void dimension(const std::optional<Area>& grown) const;  // when new cells lie outside
    void view() const;
    void standard_sizes() const;
    void columns() const;
    void merges() const;
    void conditional_formats() const;

    // The first child of that name; no element when there is none.
    [[nodiscard]] XmlElement child(std::string_view local_name) const;
    [[nodiscard]] std::string_view prefix() const { return XmlElement::root(text).prefix(); }
    void add_child(std::string_view name, std::string_view source) const {
        insert_child(edits, text, layout.children, name, source, worksheet_order);
    }
};

}  // namespace kestrune::host
