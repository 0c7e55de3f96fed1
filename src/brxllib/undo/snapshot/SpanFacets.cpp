#include <array>

#include "automation/Conversion.h"
#include "brxllib/undo/snapshot/Facet.h"

namespace kestrune::brxllib::undo {
namespace {

using automation::Value;
using excel::Range;

template <Value (Range::*get)() const>
std::optional<Reading> read(const Range& lines) {
    Answers answers;
    answers.add((lines.*get)());
    return answers.take();
}
template <void (Range::*put)(Value) const>
void write(const Range& lines, const Reading& reading) {
    (lines.*put)(reading[0]);
}

// Height or width, and whether it is the sheet's own.
template <Value (Range::*size)() const, Value (Range::*standard)() const>
std::optional<Reading> read_size(const Range& lines) {
    Answers answers;
    const Value points = (lines.*size)();
    const bool hidden = points.is_number() && automation::to_double(points) == 0;
    // What is hidden keeps its size to itself.
    if (answers.add(points)) answers.add(hidden ? Value(true) : (lines.*standard)());
    return answers.take();
}
template <Value (Range::*size)() const, void (Range::*put_size)(Value) const, void (Range::*put_standard)(Value) const>
void write_size(const Range& lines, const Reading& reading) {
    if (automation::to_double(reading[0]) == 0) return;
    if (automation::to_boolean(reading[1])) {
        (lines.*put_standard)(true);
        if ((lines.*size)() == reading[0]) return;
    }
    (lines.*put_size)(reading[0]);
}

// A size that all lines get shows those that are hidden among them: they are hidden once more in the end.
constexpr auto rows = std::to_array<Facet>({
    {"Hidden", Place::Rows, read<&Range::Hidden>, write<&Range::Hidden>},
    {"RowHeight", Place::Rows, read_size<&Range::RowHeight, &Range::UseStandardHeight>,
     write_size<&Range::RowHeight, &Range::RowHeight, &Range::UseStandardHeight>},
    {"OutlineLevel", Place::Rows, read<&Range::OutlineLevel>, write<&Range::OutlineLevel>},
    {"Hidden", Place::Rows, read<&Range::Hidden>, write<&Range::Hidden>},
});
constexpr auto columns = std::to_array<Facet>({
    {"Hidden", Place::Columns, read<&Range::Hidden>, write<&Range::Hidden>},
    {"ColumnWidth", Place::Columns, read_size<&Range::ColumnWidth, &Range::UseStandardWidth>,
     write_size<&Range::ColumnWidth, &Range::ColumnWidth, &Range::UseStandardWidth>},
    {"OutlineLevel", Place::Columns, read<&Range::OutlineLevel>, write<&Range::OutlineLevel>},
    {"Hidden", Place::Columns, read<&Range::Hidden>, write<&Range::Hidden>},
});

}  // namespace

std::span<const Facet> row_facets() { return rows; }
std::span<const Facet> column_facets() { return columns; }

}  // namespace kestrune::brxllib::undo
