#pragma once

#include <span>
#include <string>
#include <string_view>

namespace kestrune::cli {

// The few of some texts that are most like what somebody typed, for a message: "'Format', 'Font and Text'". Empty for
// none.
std::string nearest_texts(std::string_view typed, std::span<const std::string> texts);

}  // namespace kestrune::cli
