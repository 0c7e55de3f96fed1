#pragma once

#include <cstddef>
#include <vector>

#include "brxllib/undo/snapshot/Budget.h"
#include "brxllib/undo/snapshot/Restoring.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// The merged areas that touch an area, whole.
class MergeRecord {
  public:
    static MergeRecord take(const excel::Worksheet& sheet, const std::vector<formula::Area>& areas, Budget& budget);

    // Splits what was not merged. Contents go in after that.
    void split_others(const std::vector<formula::Area>& areas, Restoring& restoring) const;
    void merge(Restoring& restoring) const;

    [[nodiscard]] const std::vector<formula::Area>& areas() const { return merged_; }
    [[nodiscard]] std::size_t bytes() const { return sizeof(MergeRecord) + merged_.capacity() * sizeof(formula::Area); }
    bool operator==(const MergeRecord&) const = default;

  private:
    std::vector<formula::Area> merged_;  // by their first cells
};

}  // namespace kestrune::brxllib::undo
