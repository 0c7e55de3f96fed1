#pragma once

#include <string_view>
#include <vector>

#include "automation/Value.h"
#include "host/objects/CellEntry.h"
#include "host/objects/CellRange.h"

namespace kestrune::host {

// Puts values and formulas into cells as Excel does: everything is read and checked first, then
// written, so that a refused write (error 1004) changes nothing.
class ContentWriter {
  public:
    ContentWriter(std::string_view member, const CellRange& cells, formula::Notation notation);

    // One value for all cells, a formula adjusted as a fill does it; or an array, cell by cell: a row
    // alone repeats down, a column alone across, and #N/A fills what the array does not reach.
    void write(const automation::Value& value);

    // One array formula, without "=", over the only area.
    void write_array_formula(const std::string& formula);

    // Takes values and formulas away. Who calls it tells the world, when all is done.
    void clear();

  private:
    void require_writable() const;
    void clear_arrays() const;  // those inside the cells, which give way as a whole
    void write_scalar(const automation::Value& value);
    void write_array(const automation::Array& array);
    void put_everywhere(const CellEntry& entry);
    void put(Position at, Position from, const CellEntry& entry);
    void put_content(Position at, Position from, const CellEntry& entry);
    [[nodiscard]] CellEntry read(const automation::Value& value, bool as_text) const;
    void require_table(const CellEntry& entry, const Area& area) const;  // where the formula speaks of its own
    [[nodiscard]] StyleId restyled(StyleId style, const CellEntry& entry) const;
    [[nodiscard]] bool is_text(StyleId style) const;
    [[nodiscard]] bool covered(Position at) const;

    std::string_view member_;
    const CellRange& cells_;
    EntryRules rules_;
    std::vector<Area> merges_;  // those that touch the cells: only their first cells hold content
};

}  // namespace kestrune::host
