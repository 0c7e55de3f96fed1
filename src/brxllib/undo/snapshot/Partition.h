#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "brxllib/undo/snapshot/Budget.h"
#include "brxllib/undo/snapshot/Reading.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// Rectangles and what each of them has in one respect, equal readings shared. The same state of the same cells always
// gives the same partition.
class Partition {
  public:
    // Which neighbours may be joined: those in a row, those in a column. Left edges of two neighbours in a row, say,
    // are no edge of both together.
    explicit Partition(bool in_rows = true, bool in_columns = true) : in_rows_(in_rows), in_columns_(in_columns) {}

    // Adds a rectangle; what the record holds more by it comes out of the budget.
    void add(const formula::Area& area, const Reading& reading, Budget& budget);
    // When all are added: joins neighbours that are alike.
    void finish();

    [[nodiscard]] const std::vector<Reading>& readings() const { return readings_; }
    // The rectangles that have a reading, by its place in readings().
    [[nodiscard]] std::vector<formula::Area> areas_of(std::size_t reading) const;
    // What a place has; null where nothing is recorded.
    [[nodiscard]] const Reading* at(formula::Position place) const;

    [[nodiscard]] std::size_t bytes() const;
    bool operator==(const Partition&) const = default;

  private:
    struct Part {
        formula::Area area;
        std::uint32_t reading;
        bool operator==(const Part&) const = default;
    };
    std::uint32_t place_of(const Reading& reading, Budget& budget);
    void join(bool across);

    bool in_rows_;
    bool in_columns_;
    std::vector<Part> parts_;  // in the order of their readings once finished
    std::vector<Reading> readings_;
};

}  // namespace kestrune::brxllib::undo
