#pragma once

namespace kestrune::windows {

// Each DLL has one of its own: makes its classes known to CreateObject by their ProgIDs. Called once, before the first
// object is made.
void wire_component();

}  // namespace kestrune::windows
