#pragma once

#include <cstdint>
#include <string_view>

#include "automation/Value.h"
#include "host/model/Format.h"

namespace kestrune::host {

// Underlines as XlUnderlineStyle. A Boolean stands for single and none; anything else is error 1004.
std::int32_t underline_constant(Underline underline);
Underline underline_of(std::string_view member, const automation::Value& style);

}  // namespace kestrune::host
