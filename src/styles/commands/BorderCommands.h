#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::styles {

// Command bodies: thin lines in the automatic colour. Nothing happens when the selection is no range.

// Draws the line along one edge (XlBordersIndex) of the selection; takes it away when it is there from end to end.
void toggle_edge(core::SharedState& shared, std::int32_t edge);
template <std::int32_t edge>
void toggle_edge_command(core::SharedState& shared, std::int32_t) {
    toggle_edge(shared, edge);
}

// The four edges of every area.
void draw_outline(core::SharedState& shared, std::int32_t);
// The lines between the cells of every area; a single cell has none.
void draw_inside_grid(core::SharedState& shared, std::int32_t);
// Takes every line away, the diagonal ones as well.
void remove_borders(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::styles
