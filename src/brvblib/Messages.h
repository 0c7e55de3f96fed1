#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kestrune::brvblib {

// The language of the message table: English (United States), as Windows numbers languages.
inline constexpr std::int32_t english = 1033;

// A user message by its number; nothing for a number that has none. "%1" stands for the name of a thing.
std::optional<std::string_view> message_text(std::int32_t number);

}  // namespace kestrune::brvblib
