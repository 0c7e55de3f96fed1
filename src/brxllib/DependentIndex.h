#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "brxllib/Links.h"
#include "brxllib/OpenBook.h"

namespace kestrune::brxllib {

// The dependents of any cell, for whoever asks about many: reads the formulas of all open workbooks once, when it is
// made, and answers without looking through them again. What changes afterwards it does not see.
class DependentIndex {
  public:
    explicit DependentIndex(const excel::Application& application);
    DependentIndex(const DependentIndex&) = delete;  // what it holds points into it
    DependentIndex& operator=(const DependentIndex&) = delete;

    // As dependents() tells them, in the same order; none for a cell of a workbook or sheet that is not there.
    [[nodiscard]] std::vector<Link> dependents(const std::string& workbook, const std::string& sheet,
                                               formula::Position at);

  private:
    using SheetKey = std::pair<const OpenBook*, std::size_t>;  // the sheet by its position

    struct Entry {
        OpenBook* book = nullptr;
        std::size_t sheet = 0;
        formula::Position at;
        std::string formula;
    };
    // Words of a formula that mean cells.
    struct Use {
        std::size_t entry = 0;
        std::size_t offset = 0;  // bytes
        std::size_t length = 0;
        std::string through;
    };
    struct AreaUses {
        formula::Area area;
        std::vector<Use> uses;
    };
    // The uses of a sheet's cells. Many formulas mean the same areas, so that there are few of these.
    struct SheetUses {
        std::map<formula::Position, std::vector<Use>> cells;
        std::vector<AreaUses> areas;
        std::unordered_map<std::string, std::size_t> area_places;      // of areas, by address
        std::map<formula::Position, std::vector<Use>> spilled_ranges;  // A1#, by the first cell
    };

    void read(OpenBook& book, std::size_t sheet);
    void add(Entry entry);

    OpenBooks books_;
    std::vector<Entry> entries_;  // book by book, sheet by sheet, row by row
    std::map<SheetKey, SheetUses> uses_;
};

}  // namespace kestrune::brxllib
