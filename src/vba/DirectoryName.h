#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace kestrune::vba {

// A name as a compound file's directory keeps it: UTF-16, at most 31 units. VbaError for what cannot be a name.
std::u16string directory_name(std::string_view name);
std::string from_directory_name(std::u16string_view name);

// The order in which siblings stand: shorter first, then by their upper-case letters.
std::strong_ordering compare_names(std::u16string_view left, std::u16string_view right);

}  // namespace kestrune::vba
