#pragma once

#include "cli/diff/Change.h"
#include "cli/diff/FormatFacts.h"
#include "cli/diff/LineChanges.h"
#include "host/model/Sheet.h"

namespace kestrune::cli {

// What differs between two sheets. Told sheet settings first, then columns, rows and cells.
class SheetDiff {
  public:
    // each_cell: cells are told one by one; else neighbours with the same change make one rectangle.
    SheetDiff(host::Sheet& before, host::Sheet& after, FormatFactsOf& before_facts, FormatFactsOf& after_facts,
              bool each_cell, const ChangeSink& tell);
    void run();
    // Cells that differ in content or format.
    [[nodiscard]] std::int64_t cells() const { return cells_; }

  private:
    void settings();
    void columns();
    void rows();
    void collect_cells();
    void tell_cells();

    struct StylePair {
        host::StyleId before = 0, after = 0;
        unsigned taken_over = 0;  // bits of Edge: lines that were the cell's and are now its neighbour's
        auto operator<=>(const StylePair&) const = default;
    };
    // The places in format_properties where two formats differ.
    const std::vector<std::size_t>& differences(StylePair pair);
    void tell_format(const std::string& place, StylePair pair);
    struct Stretch {
        std::int32_t first;
        std::int32_t last;
    };
    [[nodiscard]] std::vector<Stretch> stretches();
    [[nodiscard]] std::vector<StylePair> blank_formats_of(std::int32_t row, const std::vector<Stretch>& columns);
    void tell_line_format(LineChanges& changes, std::int32_t first, std::int32_t last, StylePair pair);
    void compare_cell(formula::Position at);
    // The sides, bits of Edge, on which a person sees the same line as before, or whose change the neighbour tells;
    // beside gives the formats across a side, if there is a neighbour.
    template <class Beside>
    [[nodiscard]] unsigned lines_taken_over(StylePair pair, Beside&& beside);
    [[nodiscard]] unsigned lines_taken_over(formula::Position at, StylePair pair);
    [[nodiscard]] std::string on_sheet(const std::string& reference) const;
    void tell_if_changed(const std::string& place, std::string_view property, std::string before, std::string after);

    host::Sheet& before_;
    host::Sheet& after_;
    FormatFactsOf& before_facts_;
    FormatFactsOf& after_facts_;
    bool each_cell_;
    const ChangeSink& tell_;
    std::int64_t cells_ = 0;
    std::map<StylePair, std::vector<std::size_t>> known_;
    std::map<StylePair, std::vector<formula::Position>> restyled_;
    std::vector<std::pair<formula::Position, Change>> rewritten_;
};

}  // namespace kestrune::cli
