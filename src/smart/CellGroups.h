#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "core/bridges/SharedState.h"
#include "excel/Worksheet.h"

namespace kestrune::smart {

// Cells of one rectangle of a sheet; rows and columns count from 1.
struct Rectangle {
    std::int32_t top = 1;
    std::int32_t left = 1;
    std::int32_t bottom = 1;
    std::int32_t right = 1;

    [[nodiscard]] bool single_cell() const { return top == bottom && left == right; }
    bool operator==(const Rectangle&) const = default;
};

// One thing that cells show, with no value of its own (Null) where they differ.
struct CellProperty {
    automation::Value (*get)(const excel::Range& cells);
    void (*set)(const excel::Range& cells, const automation::Value& value);
};

// "B2:C5".
[[nodiscard]] std::string address_of(const Rectangle& rectangle);

// Puts cells that are named one after another together to rectangles: those of a row from left to right, rows from the
// top down.
class RectangleBuilder {
  public:
    void add(std::int32_t row, std::int32_t column);
    // Ends with the last row; nothing is added any more.
    [[nodiscard]] std::vector<Rectangle> rectangles() &&;

  private:
    void end_row();

    std::vector<Rectangle> done_;
    std::vector<Rectangle> open_;  // that end in the row before the present one
    std::vector<Rectangle> row_;   // of the present row
};

// Cells scattered over a sheet, for doing the same to all of them in few calls.
class CellGroups {
  public:
    CellGroups(const core::SharedState& shared, const excel::Worksheet& sheet, std::vector<Rectangle> rectangles);
    CellGroups(const CellGroups&) = delete;
    CellGroups& operator=(const CellGroups&) = delete;

    // Runs a statement on all the cells, many of them at a time. What Excel refuses for many is tried for fewer, so
    // that only the cells that it refuses stay as they were; they are told to the trace.
    void each(const std::function<void(const excel::Range& cells)>& statement) const;
    // Writes a property where not all of the cells show the value already.
    void put(const CellProperty& property, const automation::Value& value) const;

  private:
    struct Group {
        excel::Range cells;
        std::span<const Rectangle> rectangles;
    };

    [[nodiscard]] std::vector<Group> groups_of(std::span<const Rectangle> rectangles) const;
    void run(const Group& group, const std::function<void(const excel::Range& cells)>& statement) const;
    [[nodiscard]] bool is_locked(const excel::Range& cells) const;

    const core::SharedState& shared_;
    excel::Worksheet sheet_;
    std::vector<Rectangle> rectangles_;
    std::vector<Group> groups_;
    bool protected_ = false;
};

}  // namespace kestrune::smart
