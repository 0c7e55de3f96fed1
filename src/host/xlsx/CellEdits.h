#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/Sheet.h"
#include "host/xlsx/FileNumbers.h"
#include "host/xlsx/RowXml.h"
#include "host/xlsx/SheetLayout.h"
#include "host/xlsx/TextEdits.h"

namespace kestrune::host {

// The edits that bring <sheetData> in line with a sheet's cells and rows.
class CellEdits {
  public:
    CellEdits(std::string_view text, Sheet& sheet, const SheetLayout& layout, const FileNumbers& formats,
              TextEdits& edits);

    void run();
    [[nodiscard]] bool formulas_changed() const { return formulas_changed_; }
    // What new cells cover; nothing when there are none.
    [[nodiscard]] const std::optional<Area>& grown() const { return grown_; }

  private:
    struct NewCell {
        Position at;
        const Cell* cell;
    };

    void edit_cells();
    void edit_cell(Position at, const Cell& cell);
    void edit_formula(const XmlElement& element, Position at, const Cell& cell);
    void edit_style(const XmlElement& element, StyleId style);
    void remove_lost_cells();
    void add_cell(Position at, const Cell& cell);
    void edit_rows();
    void write_new_cells();
    // Puts cells into a row that stands in the file.
    void insert_into_row(std::size_t offset, const NewCell* first, const NewCell* last);
    void give_reference(const XmlElement& element, const std::string& reference);
    [[nodiscard]] std::string cell_source(const NewCell& cell, std::string_view prefix);
    [[nodiscard]] std::string row_source(std::int32_t row, const NewCell* first, const NewCell* last);
    [[nodiscard]] const XmlElement& sheet_data();
    [[nodiscard]] RowFormat format_of(std::int32_t row) const;  // with the file's number of its style

    std::string_view text_;
    Sheet& sheet_;
    const SheetLayout& layout_;
    RowXml row_xml_;
    const FileNumbers& formats_;
    TextEdits& edits_;
    XmlElement sheet_data_;
    std::string_view prefix_;
    std::vector<NewCell> new_cells_;
    std::int64_t kept_cells_ = 0;
    bool formulas_changed_ = false;
    std::optional<Area> grown_;
};

}  // namespace kestrune::host
