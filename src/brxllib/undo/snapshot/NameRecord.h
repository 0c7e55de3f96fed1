#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "brxllib/undo/snapshot/Budget.h"
#include "brxllib/undo/snapshot/Restoring.h"
#include "excel/Workbook.h"

namespace kestrune::brxllib::undo {

// The defined names of a workbook.
class NameRecord {
  public:
    static NameRecord take(const excel::Workbook& workbook, Budget& budget, const automation::Trace& trace);

    void restore(const excel::Workbook& workbook, Restoring& restoring) const;

    [[nodiscard]] std::size_t bytes() const;
    bool operator==(const NameRecord&) const = default;

  private:
    struct Entry {
        std::string name;       // with its sheet in front when it belongs to one
        std::string refers_to;  // R1C1: relative references say the same wherever the active cell is
        std::string comment;
        bool visible = true;
        bool operator==(const Entry&) const = default;
    };
    std::vector<Entry> names_;  // in order of their names
};

}  // namespace kestrune::brxllib::undo
