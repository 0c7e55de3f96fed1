#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/bridges/SharedState.h"
#include "forms/Form.h"

namespace kestrune::smart {

// What the two dialogs of Smart Fill have in common: txtSpacing with spnSpacing, optAcross and optDown, cmbStyle.
void connect_fill_controls(const core::SharedState& shared, forms::Form& form);
void show_fill_options(const core::SharedState& shared, forms::Form& form, std::int32_t spacing, bool across,
                       const std::string& style);
// The spacing in its box, nothing (and a message) when it is no number; numbers out of range are the caller's.
[[nodiscard]] std::optional<std::int32_t> spacing_in(const core::SharedState& shared, forms::Form& form);

}  // namespace kestrune::smart
