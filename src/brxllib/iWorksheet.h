#pragma once

#include "automation/MemberTable.h"
#include "brxllib/Labels.h"

namespace kestrune::brxllib {

// What a person sees on a sheet: which labels govern a cell.
class iWorksheet : public automation::Served<iWorksheet> {
  public:
    static const automation::MemberTable& members();

  private:
    // The label of the cell's row (column), or Nothing: nearest_label.
    template <Side side>
    [[nodiscard]] automation::ObjectRef label(const automation::ObjectRef& cell) const {
        return nearest_label(excel::Range(cell), side).object();
    }
    // To ask when there is no label: line_heading.
    template <Side side>
    [[nodiscard]] automation::ObjectRef heading(const automation::ObjectRef& cell) const {
        return line_heading(excel::Range(cell), side).object();
    }
};

}  // namespace kestrune::brxllib
