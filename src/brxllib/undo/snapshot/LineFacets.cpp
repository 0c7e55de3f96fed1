#include "brxllib/undo/snapshot/LineFacets.h"

#include "brxllib/undo/snapshot/ColorState.h"

namespace kestrune::brxllib::undo {
namespace {

using automation::Value;
using excel::Border;
using excel::Range;

template <std::int32_t index>
std::optional<Reading> read(const Range& cells) {
    const Border line = cells.Borders(index);
    Answers answers;
    const Value style = line.LineStyle();
    if (!answers.add(style) || automation::to_integer(style) == excel::xlNone) return answers.take();
    if (answers.add(line.Weight())) answers.add(read_color(line, [&] { return cells.Cells(1, 1).Borders(index); }));
    return answers.take();
}

template <std::int32_t index>
void write(const Range& cells, const Reading& reading) {
    const Border line = cells.Borders(index);
    line.LineStyle(reading[0]);
    if (reading.size() == 1) return;
    line.Weight(reading[1]);
    write_color(line, &reading[2]);
}

// Cells without any line get rid of all in one go: on whole columns and rows, lines taken away one kind after the other
// leave cells behind.
std::optional<Reading> read_absence(const Range& cells) {
    const Value style = cells.Borders().LineStyle();
    const bool none = !style.is(Value::Kind::Null) && automation::to_integer(style) == excel::xlNone;
    return none ? Reading{excel::xlNone} : Reading{};
}
void write_absence(const Range& cells, const Reading& reading) {
    if (!reading.empty()) cells.Borders().LineStyle(reading[0]);
}

template <std::int32_t index>
constexpr Facet lines(std::string_view name, Place place) {
    return {name, place, &read<index>, &write<index>};
}

}  // namespace

constexpr std::array<Facet, 9> line_facets{
    Facet{"Borders", Place::Cells, &read_absence, &write_absence},
    lines<excel::xlInsideVertical>("Borders", Place::InsideVertical),
    lines<excel::xlInsideHorizontal>("Borders", Place::InsideHorizontal),
    lines<excel::xlEdgeLeft>("Borders", Place::LeftEdge),
    lines<excel::xlEdgeTop>("Borders", Place::TopEdge),
    lines<excel::xlEdgeBottom>("Borders", Place::BottomEdge),
    lines<excel::xlEdgeRight>("Borders", Place::RightEdge),
    lines<excel::xlDiagonalDown>("Borders", Place::Cells),
    lines<excel::xlDiagonalUp>("Borders", Place::Cells),
};

}  // namespace kestrune::brxllib::undo
