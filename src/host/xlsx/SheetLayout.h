#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "host/xlsx/TextEdits.h"

namespace kestrune::host {

// Where a worksheet's pieces stand in its XML: all that is kept of the text, besides each cell's own place, so that
// it can be changed later without being read again.
struct SheetLayout {
    struct Extent {
        std::uint32_t begin;
        std::uint32_t end;
    };
    struct Row {
        std::int32_t row;
        std::uint32_t offset;  // of the element's "<"
    };

    std::vector<Extent> children;  // of the root, in the order of the text
    std::int32_t sheet_data = -1;  // <sheetData> among them
    std::vector<Row> rows;         // sorted by row, then offset
    std::int64_t cells = 0;        // how many were read
};

// The children of a worksheet in the order in which they must stand (ECMA-376 18.3.1.99); -1 for others.
[[nodiscard]] int worksheet_order(std::string_view local_name);

// Inserts a new child among those of a root element, where `order` puts its name: behind its last predecessor.
// Children that go to the same place stand in the order in which they are inserted.
void insert_child(TextEdits& edits, std::string_view text, const std::vector<SheetLayout::Extent>& children,
                  std::string_view name, std::string_view source, int (*order)(std::string_view));
void insert_child(TextEdits& edits, const XmlElement& parent, std::string_view name, std::string_view source,
                  int (*order)(std::string_view));

// The text with a root element that can take children: <root/> becomes <root></root>.
void open_root(std::string& text);

}  // namespace kestrune::host
