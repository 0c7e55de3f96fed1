#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestrune::vba {

// A value of the PROJECT stream that Visual Basic expects scrambled with the project's id ([MS-OVBA] 2.4.3), as
// hexadecimal digits: CMG, DPB and GC. `seed` is any byte.
std::string scramble(std::string_view data, std::string_view project_id, std::uint8_t seed);

// Takes it back; VbaError when it was not made for that id.
std::string unscramble(std::string_view digits, std::string_view project_id);

}  // namespace kestrune::vba
