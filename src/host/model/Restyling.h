#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <vector>

#include "host/model/Sheet.h"

namespace kestrune::host {

// One change of an area's formats, planned before anything is touched.
//
// Every position must show its old format's successor, and every position outside the area its old format. A position
// without a cell shows its row's or column's format, so the plan picks the row and column formats that leave the fewest
// positions differing, and cells make up for the rest. That covers whole columns, whole rows, the sheet, ordinary
// blocks, and blocks such as A2:XFD1048576, where the few positions outside get cells instead.
class Restyling {
  public:
    using Map = std::function<StyleId(StyleId, unsigned edges)>;

    // With by_edge, map is told the sides of the area that a position lies on; else always 0.
    Restyling(Sheet& sheet, const Area& area, const Map& map, bool by_edge);
    void run();

  private:
    // Neighbouring rows, or columns, that the change treats alike.
    struct Band {
        std::int32_t first;
        std::int32_t last;
        bool inside;
        unsigned edges;
        [[nodiscard]] std::int64_t size() const { return last - first + 1; }
    };
    struct Columns : Band {
        StyleId before;
        StyleId after;
    };
    struct Rows : Band {
        std::int64_t plain_rows;       // those without a style of their own
        std::optional<StyleId> after;  // what those get, if any
    };
    struct StyledRow {
        std::int32_t row;
        StyleId before;
        StyleId after;
        bool open;  // shows its style somewhere in the area
    };

    [[nodiscard]] std::vector<Band> bands(std::int32_t first, std::int32_t last, std::int32_t end, Edge first_edge,
                                          Edge last_edge) const;
    StyleId successor(StyleId style, unsigned edges);
    [[nodiscard]] StyleId known_successor(StyleId style, unsigned edges) const;
    // Finds the successors of the area's cells, or gives them these; whether any differs.
    template <bool apply>
    bool map_stored();
    // What blank positions must show afterwards; `nothing` where there is none.
    StyleId wanted_of_column(const Columns& columns, const Rows& rows);
    [[nodiscard]] StyleId wanted_of_row(const StyledRow& row, const Columns& columns, const Rows& rows) const;
    void plan_columns();
    void plan_plain_rows();
    void plan_styled_rows();
    // The row format that spares many cells, given what each of columns_ must show and shows without it.
    [[nodiscard]] std::optional<StyleId> better_row_style(const std::vector<StyleId>& wanted,
                                                          const std::vector<StyleId>& shown) const;
    void fill_gaps();
    void apply_to_columns();
    void apply_to_rows();

    static constexpr StyleId nothing = std::numeric_limits<StyleId>::max();

    Sheet& sheet_;
    Area area_;
    const Map& map_;
    bool by_edge_;
    std::array<std::vector<StyleId>, 16> successors_;
    std::vector<Columns> columns_;
    std::vector<Rows> rows_;
    std::vector<std::vector<StyleId>> wanted_;  // wanted_of_column for each of columns_, each of rows_
    std::vector<StyledRow> styled_rows_;        // of the area, ascending
};

}  // namespace kestrune::host
