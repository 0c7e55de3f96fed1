#pragma once

#include <algorithm>
#include <string_view>

namespace kestrune::vba {

// Visual Basic's names and keywords do not mind case.
constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool same_name(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

constexpr bool is_letter(char c) { return lower(c) >= 'a' && lower(c) <= 'z'; }

constexpr bool is_identifier(std::string_view name) {
    return !name.empty() && name.size() <= 31 && is_letter(name[0]) &&
           std::all_of(name.begin(), name.end(),
                       [](char c) { return is_letter(c) || (c >= '0' && c <= '9') || c == '_'; });
}

}  // namespace kestrune::vba
