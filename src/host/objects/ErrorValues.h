#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "host/model/Cell.h"

namespace kestrune::host {

// Error values as texts ("#N/A") and as the codes of Error values (0x800A0000 + 2042).
std::optional<CellError> error_of_text(std::string_view text);
std::string_view text_of_error(CellError error);
std::int32_t code_of_error(CellError error);
CellError error_of_code(std::int32_t code);  // #VALUE! for an unknown one

}  // namespace kestrune::host
