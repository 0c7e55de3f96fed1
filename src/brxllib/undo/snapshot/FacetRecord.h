#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "automation/Trace.h"
#include "brxllib/undo/snapshot/Facet.h"
#include "brxllib/undo/snapshot/Partition.h"
#include "brxllib/undo/snapshot/Pieces.h"
#include "brxllib/undo/snapshot/Restoring.h"

namespace kestrune::brxllib::undo {

// What the cells of an area have in some respects.
class FacetRecord {
  public:
    FacetRecord() = default;
    // facets outlive the record. What this Excel does not know is left out, and told to the trace.
    static FacetRecord take(std::span<const Facet> facets, const excel::Worksheet& sheet,
                            const std::vector<Piece>& pieces, Budget& budget, const automation::Trace& trace);

    void restore(Restoring& restoring) const;

    // Adds a line for every area with a gradient: that cannot be made anew.
    void tell_gradients(std::vector<std::string>& lines) const;

    [[nodiscard]] std::size_t bytes() const;
    bool operator==(const FacetRecord& other) const { return parts_ == other.parts_; }

  private:
    struct Part {
        const Facet* facet = nullptr;
        bool of_columns = false;
        bool of_rows = false;
        Partition partition{};
        bool operator==(const Part&) const = default;
    };
    static bool reaches_end(const Part& part, const formula::Area& area);
    static void restore_group(const Part& part, std::span<const formula::Area> areas, const Reading& reading,
                              Restoring& restoring);

    std::vector<Part> parts_;
};

}  // namespace kestrune::brxllib::undo
