#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kestrune::number_format {

// Names of months and days in one language, January and Sunday first.
struct DateNames {
    std::array<std::string_view, 12> months;
    std::array<std::string_view, 12> short_months;
    std::array<std::string_view, 7> days;
    std::array<std::string_view, 7> short_days;
};

// The names that a format with this Windows language id ([$-407]) shows; English ones for languages without a table.
[[nodiscard]] const DateNames& date_names(std::uint32_t language);

}  // namespace kestrune::number_format
