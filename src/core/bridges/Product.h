#pragma once

#include <string_view>

namespace kestrune::core {

// The names under which the add-in introduces itself.
inline constexpr std::string_view client_name = "KestruneXL";           // to the in-house libraries
inline constexpr std::string_view product_name = "Kestrune";            // to the user
inline constexpr std::string_view product_title = "Brannoch Kestrune";  // caption of every message box

}  // namespace kestrune::core
