#pragma once

#include <functional>
#include <optional>

#include "host/objects/CellRange.h"
#include "host/objects/HostObject.h"

namespace kestrune::host {

// Excel's Range: one or more areas of one sheet, at least one. A reading whose cells differ answers
// Null. A write that Excel refuses is error 1004 and changes nothing.
class RangeObject final : public HostObject<RangeObject> {
  public:
    // What Item and Count count: Rows and Columns answer ranges of whole rows and columns.
    enum class Unit : std::uint8_t { Cells, Rows, Columns };

    static const MemberTable& members();

    explicit RangeObject(CellRange cells, Unit unit = Unit::Cells)
        : HostObject(cells.session()), cells_(std::move(cells)), unit_(unit) {}

    [[nodiscard]] const CellRange& cell_range() const { return cells_; }
    [[nodiscard]] const Workbook& home() const { return cells_.sheet().workbook(); }

    // Where it is: RangePlace.cpp.
    [[nodiscard]] ObjectRef worksheet() const;
    [[nodiscard]] std::string address(const Value& row_absolute, const Value& column_absolute,
                                      const Value& reference_style, const Value& external,
                                      const Value& relative_to) const;
    [[nodiscard]] std::int32_t row() const { return cells_.first().first_row; }
    [[nodiscard]] std::int32_t column() const { return cells_.first().first_column; }
    [[nodiscard]] std::int32_t count() const;  // overflow from 2^31 on
    [[nodiscard]] Value count_large() const;
    void select();
    void activate();

    // Other ranges from it: RangeNavigation.cpp. What lies outside the sheet is error 1004.
    // Its cells, row by row, area after area; of Rows and Columns the rows and columns.
    [[nodiscard]] ObjectRef new_enum() const;
    [[nodiscard]] ObjectRef areas() const;
    [[nodiscard]] ObjectRef cells() const;
    [[nodiscard]] ObjectRef rows() const;
    [[nodiscard]] ObjectRef columns() const;
    [[nodiscard]] ObjectRef entire_row() const;
    [[nodiscard]] ObjectRef entire_column() const;
    // Counted from 1 from the first area's top-left cell; may point beyond the range. A column may be letters.
    [[nodiscard]] ObjectRef item(const Value& row_index, const Value& column_index) const;
    [[nodiscard]] ObjectRef range(const Value& cell1, const Value& cell2) const;
    [[nodiscard]] ObjectRef offset(const Value& rows, const Value& columns) const;
    [[nodiscard]] ObjectRef resize(const Value& rows, const Value& columns) const;
    [[nodiscard]] ObjectRef end(std::int32_t direction) const;  // where Ctrl and an arrow lead
    [[nodiscard]] ObjectRef current_region() const;             // the block of filled cells around the first one
    // Constants, formulas, blank cells or the last cell, in the used range; of the whole sheet for a single cell. Error
    // 1004 when there are none.
    [[nodiscard]] ObjectRef special_cells(std::int32_t type, const Value& kinds) const;
    [[nodiscard]] std::vector<Area> lying_cells(std::int32_t type) const;
    [[nodiscard]] ObjectRef next() const;
    [[nodiscard]] ObjectRef previous() const;

    // The default member: an item with an index, else the value.
    [[nodiscard]] Value default_value(const Value& row_index, const Value& column_index) const;
    void set_default_value(const Value& row_index, const Value& column_index, const Value& value);

    // Content: RangeContent.cpp. Several cells read and write as a 2-D array, 1-based, of the first area.
    [[nodiscard]] Value value(const Value& data_type) const;
    void set_value(const Value& data_type, const Value& value);
    [[nodiscard]] Value value2() const;  // dates as numbers
    void set_value2(const Value& value);
    [[nodiscard]] Value formula() const;
    void set_formula(const Value& formula);
    [[nodiscard]] Value formula_r1c1() const;
    void set_formula_r1c1(const Value& formula);
    [[nodiscard]] Value has_formula() const;
    [[nodiscard]] Value has_array() const;
    [[nodiscard]] Value formula_array() const;
    void set_formula_array(const std::string& formula);
    [[nodiscard]] ObjectRef current_array() const;
    [[nodiscard]] Value text() const;              // as the sheet shows it; Null when the cells show different texts
    [[nodiscard]] Value prefix_character() const;  // "'" for a text entered with one
    void clear();
    void clear_contents();
    void clear_formats();

    // Formats: RangeFormat.cpp.
    [[nodiscard]] ObjectRef font() const;
    [[nodiscard]] ObjectRef interior() const;
    [[nodiscard]] ObjectRef borders() const;
    [[nodiscard]] ObjectRef format_conditions() const;
    [[nodiscard]] ObjectRef hyperlinks() const;  // those that touch it
    [[nodiscard]] Value number_format() const;
    void set_number_format(const std::string& code);
    [[nodiscard]] Value horizontal_alignment() const;  // XlHAlign
    void set_horizontal_alignment(std::int32_t alignment);
    [[nodiscard]] Value vertical_alignment() const;  // XlVAlign
    void set_vertical_alignment(std::int32_t alignment);
    [[nodiscard]] Value orientation() const;  // XlOrientation, or degrees from -90 to 90
    void set_orientation(std::int32_t orientation);
    [[nodiscard]] Value indent_level() const;
    void set_indent_level(std::int32_t level);  // 0 to 15
    [[nodiscard]] Value add_indent() const;
    void set_add_indent(bool on);
    [[nodiscard]] Value shrink_to_fit() const;
    void set_shrink_to_fit(bool on);
    [[nodiscard]] Value wrap_text() const;
    void set_wrap_text(bool on);
    [[nodiscard]] Value reading_order() const;  // xlContext, xlLTR, xlRTL
    void set_reading_order(std::int32_t order);
    [[nodiscard]] Value style() const;   // a Style
    void set_style(const Value& style);  // a Style or its name; cells get everything that it says
    [[nodiscard]] Value locked() const;
    void set_locked(bool on);
    [[nodiscard]] Value formula_hidden() const;
    void set_formula_hidden(bool on);

    // Rows, columns and merges: RangeGrid.cpp.
    [[nodiscard]] Value row_height() const;    // points; 0 for hidden rows
    void set_row_height(double points);        // 0 to 409.5; 0 hides
    [[nodiscard]] Value column_width() const;  // characters of the Normal font
    void set_column_width(double characters);  // 0 to 255; 0 hides
    [[nodiscard]] Value use_standard_height() const;
    void set_use_standard_height(bool on);  // False changes nothing
    [[nodiscard]] Value use_standard_width() const;
    void set_use_standard_width(bool on);
    [[nodiscard]] double height() const;  // points, of the first area, as the three below
    [[nodiscard]] double width() const;
    [[nodiscard]] double left() const;
    [[nodiscard]] double top() const;
    [[nodiscard]] Value hidden() const;  // of entire rows or columns only
    void set_hidden(bool on);
    [[nodiscard]] Value outline_level() const;  // 1 to 8
    void set_outline_level(std::int32_t level);
    // Whole rows or columns one level deeper or up; error 1004 past the eighth level and where no group is.
    void group(const Value& start, const Value& end, const Value& by, const Value& periods);
    void ungroup();
    // Whole rows or columns: RangeStructure.cpp. Error 1004 for blocks of cells, areas that overlap, protected sheets,
    // and whatever could not follow. Answers True.
    bool insert(const Value& shift, const Value& copy_origin);
    bool remove(const Value& shift);
    // Rows as tall, or columns as wide, as what they hold: RangeAutoFit.cpp.
    void auto_fit();

    [[nodiscard]] Value merge_cells() const;
    void set_merge_cells(bool on);
    [[nodiscard]] ObjectRef merge_area() const;
    void merge(const Value& across);
    void un_merge();

  private:
    [[nodiscard]] ObjectRef make(std::vector<Area> areas, Unit unit = Unit::Cells) const;
    [[nodiscard]] ObjectRef part_at(std::int64_t position) const;
    [[nodiscard]] ObjectRef line_of_unit(const Value& index) const;
    template <class Read>
    [[nodiscard]] Value read_format(Read&& read) const {
        return cells_.uniform([&](StyleId id) { return Value(read(cells_.styles().formats[id])); });
    }
    void write_format(std::string_view member, const std::function<void(CellFormat&)>& change) const {
        cells_.restyle(member, [&](StyleId id) { return cells_.styles().with_format(id, change); });
    }
    void fit_rows(const Area& area);
    void fit_columns(const Area& area);
    void change_outline(std::string_view member, std::int32_t step);
    // Whether the range counts as columns where rows and columns have the same property.
    [[nodiscard]] bool of_columns() const;

    CellRange cells_;
    Unit unit_;
};

// The range that an argument is; error 1004 when it is none.
std::shared_ptr<RangeObject> range_argument(std::string_view member, const Value& argument);

}  // namespace kestrune::host
