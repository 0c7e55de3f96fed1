#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "formula/Edit.h"
#include "host/model/Cell.h"
#include "host/model/ConditionalFormat.h"
#include "host/model/Hyperlink.h"
#include "host/model/RowsAndColumns.h"
#include "host/model/SheetView.h"

namespace kestrune::host {

class Restyling;
class Workbook;

// A cell's content as it goes in and comes out; the string is held, not its number.
struct CellContent {
    CellKind kind = CellKind::Blank;
    double number = 0;
    bool boolean = false;
    CellError error = CellError::Null;
    std::string text;

    static CellContent blank() { return {}; }
    static CellContent of(double number);
    static CellContent of(bool boolean);
    static CellContent of(CellError error);
    static CellContent of(std::string text);
    static CellContent of(const char* text) { return of(std::string(text)); }  // else it would be a truth value
};

// Where a format shows without content: a blank cell of a column, or a whole row.
struct BlankCell {
    std::int32_t row;
    StyleId style;
};

// The cells of one column from top to bottom, sorted by row, at most one a row.
struct CellColumn {
    std::vector<Cell> cells;

    // The first cell at or below a row, which may be the end.
    [[nodiscard]] std::vector<Cell>::const_iterator from(std::int32_t row) const;
    [[nodiscard]] std::vector<Cell>::iterator from(std::int32_t row);
    [[nodiscard]] const Cell* find(std::int32_t row) const;
    [[nodiscard]] Cell* find(std::int32_t row);
    Cell& at_or_new(std::int32_t row, StyleId style_when_new);  // keeps the order; appending is cheap
    // Adds blank cells where there are none yet, all in one pass; rows ascending. Whether any was missing.
    bool add_missing(const std::vector<BlankCell>& blanks);
};

enum class SheetKind : std::uint8_t { Worksheet, Chartsheet, Other };
enum class Visibility : std::uint8_t { Visible, Hidden, VeryHidden };

// What the sheet allows while protected (ECMA-376 18.3.1.85); the password stays in the file.
struct SheetProtection {
    bool on = false;
    bool against_people_only = false;  // off for callers of the object model, which are all that there is here
    std::string password;              // as Protect was given it; of a sheet from a file it stays unknown
    bool format_cells = false;         // true: allowed
    bool format_columns = false;
    bool format_rows = false;
    bool insert_rows = false;
    bool insert_columns = false;
    bool delete_rows = false;
    bool delete_columns = false;
};

// What holds for rows and columns that say nothing of themselves, and how outlines are drawn.
struct SheetDefaults {
    double default_row_height = 15;      // points
    double default_column_width = -1;    // characters as stored; negative: 8 characters and padding (base_column_width)
    std::int32_t base_column_width = 8;  // characters
    bool zero_height = false;            // rows are hidden unless they say otherwise
    bool summary_below = true;
    bool summary_right = true;
    bool custom_default_height = false;  // default_row_height was set by someone, not measured
    std::optional<Color> tab_color;
    bool changed = false;  // differs from the file
};

// Cells of one column (or alike columns) and a line across one of their edges that they and their neighbours there do
// not both draw.
struct UnsettledLine {
    Area cells;
    Line shown;
    bool own;        // the cells are to draw it
    bool neighbour;  // those across are to

    bool take(const UnsettledLine& next);  // grows downwards by the next if that is alike; whether it was
};

// One sheet of a workbook. Its content is read from the file at the first touch.
class Sheet {
  public:
    Sheet(Workbook& workbook, std::string name, SheetKind kind);
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    [[nodiscard]] Workbook& workbook() const { return workbook_; }
    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] SheetKind kind() const { return kind_; }
    Visibility visibility = Visibility::Visible;

    // The reader fills the sheet through these; loader runs once, at the first need of any content.
    void load_with(std::function<void(Sheet&)> loader) { loader_ = std::move(loader); }
    [[nodiscard]] bool loaded() const { return !loader_; }
    void ensure_loaded();
    Cell& append_loaded(
        std::int32_t column,
        const Cell& cell);  // rows ascending within each column, else the column is sorted after loading
    std::uint32_t add_loaded_formula(Formula formula);  // the number for Cell::formula
    std::map<std::int32_t, RowFormat>& loaded_rows();

    // Cells. Reading never creates; 1-based positions on the sheet.
    [[nodiscard]] const Cell* find(Position at);
    [[nodiscard]] StyleId style_at(Position at);        // the cell's, else its row's, else its column's
    [[nodiscard]] CellContent content_at(Position at);  // the cached value of a formula
    [[nodiscard]] std::string formula_at(
        Position at);  // A1, without "="; empty when there is none; a shared one shifted to its cell
    [[nodiscard]] const Formula* formula_record(Position at);
    [[nodiscard]] Area used_area();  // cells and formatted rows, as UsedRange; A1 when empty
    [[nodiscard]] std::int64_t stored_cells();
    // Stored cells of an area, row by row when `by_rows`, else column by column (faster).
    void visit_cells(const Area& area, bool by_rows, const std::function<void(Position, const Cell&)>& visit);

    // Content. Writing marks the part changed; a formula loses its cached value. A part of an array formula
    // or data table of several cells cannot be written alone: ModelError, and nothing changes. What writes a whole one
    // clears it first. Values that other formulas may use go stale, so the workbook recalculates on load.
    void set_content(Position at, const CellContent& content);
    void set_formula(Position at, std::string text);  // without "="; a checked formula
    void set_array_formula(const Area& reach, std::string text);
    void clear_content(const Area& area);
    void require_whole_arrays(const Area& area);  // ModelError when the area holds some cells of an array, not all

    // Formats. `map` is called once for every distinct format in the area and answers its successor.
    // Whole columns, rows and sheets change their column and row formats, and cells only where they
    // are stored or where a row's format crosses a column's.
    void restyle(const Area& area, const std::function<StyleId(StyleId)>& map);
    // The same with a border's place in mind: positions on the area's rim map through other functions;
    // edges is a bit set of 1 left, 2 top, 4 right, 8 bottom for a cell on that rim.
    void restyle_by_edge(const Area& area, const std::function<StyleId(StyleId, unsigned edges)>& map);
    // The distinct formats that an area shows, blank cells included, each once, that of its top-left cell first.
    [[nodiscard]] std::vector<StyleId> styles_in(const Area& area);

    // Lines between cells. The line between two neighbours is one: either side shows it, the cell's own first.
    [[nodiscard]] Line edge_line(Position at, Edge edge);
    // The distinct lines along one side of an area, seen from inside, blank cells included; never empty.
    [[nodiscard]] std::vector<Line> edge_lines(const Area& area, Edge edge);
    // The distinct lines between the area's columns (or rows); empty when it has one only.
    [[nodiscard]] std::vector<Line> inside_lines(const Area& area, bool between_columns);
    // Makes both neighbours draw the line that shows between them; along a side those beyond it do only if they draw
    // one.
    void settle_edge_lines(const Area& area, Edge edge);
    void settle_inside_lines(const Area& area, bool between_columns);
    // Takes away what the neighbours around the area draw along these sides (bits of Edge), so that the area's own
    // lines, or none, show there.
    void clear_facing_lines(const Area& area, unsigned edges);

    // Rows and columns. Heights in points, widths in characters of the Normal font's widest digit as a
    // user sees them (padding taken off).
    [[nodiscard]] double row_height(std::int32_t row);  // 0 when hidden
    // Rounded to pixels; 0 hides. Heights that rows of the file have are whole pixels of the screen that it was made
    // on, and taken as they are.
    void set_row_height(std::int32_t first, std::int32_t last, double points);
    void know_height(double points) { known_heights_.insert(points); }
    [[nodiscard]] double column_width(std::int32_t column);         // 0 when hidden
    [[nodiscard]] std::int32_t column_pixels(std::int32_t column);  // at 96 dpi; 0 when hidden
    [[nodiscard]] std::int32_t default_column_pixels() const;
    void set_column_width(std::int32_t first, std::int32_t last, double characters);
    [[nodiscard]] const RowFormat* row_format(std::int32_t row);  // null for a plain row
    // change is also tried on a plain row, to see whether rows without a format get one.
    void change_rows(std::int32_t first, std::int32_t last, const std::function<void(RowFormat&)>& change);
    [[nodiscard]] const std::map<std::int32_t, RowFormat>& row_formats();
    [[nodiscard]] ColumnRuns& columns();
    [[nodiscard]] SheetDefaults& defaults() { return ensure_loaded(), defaults_; }

    // Merged areas; they never overlap.
    [[nodiscard]] const std::vector<Area>& merges();
    std::vector<Area>& loaded_merges() { return merges_; }
    // Keeps the upper-left content only and shows it in the corner; the formats stay. ModelError with an array in it.
    void merge(const Area& area);
    void unmerge(const Area& area);  // splits every merged area that the area touches
    [[nodiscard]] std::optional<Area> merge_at(Position at);

    [[nodiscard]] std::vector<ConditionalFormat>& conditional_formats();
    void delete_conditional_formats(const Area& area);  // from these cells only; other cells keep theirs
    bool conditional_formats_changed = false;

    // Read from the file and only read: saving keeps them as they stand there.
    [[nodiscard]] std::vector<Hyperlink>& hyperlinks() { return ensure_loaded(), hyperlinks_; }

    // Whole rows or columns that come and go; Workbook::apply calls these for its sheets, in this order.
    // ModelError when the edit would cut an array in two or push something off the sheet.
    void require_movable(const formula::Edit& edit);
    // Formulas and rules of this sheet follow the cells of the edited one, which may be this. Whether any did.
    bool follow(const formula::Edit& edit);
    // The cells of this sheet, its rows, columns and whatever lies on them move. New rows look like the one above, or
    // below, new columns like the one at their left, or right; the first ones, with nothing before them, are plain.
    void move_cells(const formula::Edit& edit, bool like_behind);
    bool moved = false;  // some of its cells stand elsewhere than in the file

    [[nodiscard]] SheetView& view() { return ensure_loaded(), view_; }
    [[nodiscard]] SheetProtection& protection() { return ensure_loaded(), protection_; }

    // Whether the sheet's part must be written anew.
    [[nodiscard]] bool changed() const;
    bool cells_changed = false;
    bool rows_changed = false;
    bool merges_changed = false;

    // All columns that hold cells; for readers and writers of whole sheets. Index 0 is column 1.
    [[nodiscard]] const std::vector<std::unique_ptr<CellColumn>>& cell_columns();
    [[nodiscard]] const std::vector<Formula>& formulas() const { return formulas_; }

  private:
    void finish_loading();
    [[nodiscard]] CellColumn* column_if(std::int32_t column) const;  // null without cells
    [[nodiscard]] std::span<const Cell> cells_between(std::int32_t column, std::int32_t first_row,
                                                      std::int32_t last_row) const;
    [[nodiscard]] CellColumn& column_or_new(std::int32_t column);
    [[nodiscard]] StyleId inherited_style(Position at) const;  // the row's, else the column's
    [[nodiscard]] RowFormat new_row_format() const;
    Cell& cell_for_content(Position at);
    [[nodiscard]] const Formula* live_array_at(Position at) const;
    [[nodiscard]] bool array_is_live(std::uint32_t index) const;
    void before_overwriting(const Cell& cell, Position at);
    // Formulas that leave their cells are remembered with the results that they showed, since nothing here works them
    // out: one that comes back to its cell shows its result again.
    void remember_result(const Cell& cell, Position at);
    void show_result_again(Position at);
    void make_blank(Cell& cell);
    bool follow_in_cells(const formula::Edit& edit, bool own);
    bool follow_in_rules(const formula::Edit& edit, bool own);
    void move_rows(const formula::Edit& edit, bool like_behind);
    void move_columns(const formula::Edit& edit, bool like_behind);
    void move_lying(const formula::Edit& edit);
    void blank_spills(const formula::Edit& edit);
    [[nodiscard]] bool holds(const Cell& cell, const CellContent& content);
    void value_changed();
    // The rows that have a style, ascending; quick to ask however many rows have a height of their own.
    [[nodiscard]] const std::vector<BlankCell>& styled_rows();
    [[nodiscard]] std::span<const BlankCell> styled_rows_in(std::int32_t first, std::int32_t last);
    void move_first_content(const Area& area, Position corner);
    // Whether a position without a cell shows its column's format between these rows, in any of these columns.
    [[nodiscard]] bool shows_column_format(const Area& area);
    // Whether a row without a cell somewhere between these columns shows its own.
    [[nodiscard]] bool has_blank(std::int32_t row, std::int32_t first_column, std::int32_t last_column) const;
    template <class Visit>
    void visit_beside(std::int32_t column, std::int32_t first_row, std::int32_t last_row, Visit&& visit);
    template <class Visit>
    void visit_below(std::int32_t column, std::int32_t first_row, std::int32_t last_row, Visit&& visit);
    struct Columns {
        std::int32_t first;
        std::int32_t last;
    };
    [[nodiscard]] std::vector<Columns> alike_columns(std::int32_t first, std::int32_t last);
    template <class Visit>
    void visit_rim(const Area& area, Edge edge, Visit&& visit);
    template <class Visit>
    void visit_inside(const Area& area, bool between_columns, Visit&& visit);
    void settle(const std::vector<UnsettledLine>& lines, Edge edge);
    friend class Restyling;

    Workbook& workbook_;
    std::string name_;
    SheetKind kind_;
    std::function<void(Sheet&)> loader_;
    std::set<double> known_heights_;
    bool unsorted_ = false;              // while loading: some column's cells did not come from top to bottom
    std::vector<std::uint32_t> arrays_;  // the formulas_ that cover more than their own cell
    std::vector<std::unique_ptr<CellColumn>> cells_;
    std::vector<Formula> formulas_;
    std::unordered_map<std::uint64_t, Cell> results_;  // by place; the cells as they were
    std::map<std::int32_t, RowFormat> rows_;
    std::vector<BlankCell> styled_rows_;
    bool styled_rows_known_ = false;
    ColumnRuns columns_;
    std::vector<Area> merges_;
    std::vector<ConditionalFormat> conditional_formats_;
    std::vector<Hyperlink> hyperlinks_;
    SheetDefaults defaults_;
    SheetView view_;
    SheetProtection protection_;
};

}  // namespace kestrune::host
