#pragma once

#include <string>
#include <string_view>

namespace kestrune::vba {

// The compression of Visual Basic's streams ([MS-OVBA] 2.4.1): chunks of 4096 bytes, each a row of literal bytes and of
// copies of what stands earlier in the same chunk.

std::string compress(std::string_view text);

// Takes a compressed container back; throws VbaError for anything else, and beyond `limit` bytes of result. A last
// chunk that does not get smaller is stored whole, with zeros up to 4096 bytes, and comes back with them.
std::string decompress(std::string_view bytes, std::size_t limit = std::size_t{64} << 20);

}  // namespace kestrune::vba
