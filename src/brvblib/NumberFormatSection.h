#pragma once

#include <cstddef>
#include <string_view>

namespace kestrune::brvblib {

// Where the number stands in one section of a number format. Places are offsets into the section; npos when absent.
struct NumberFormatSection {
    static constexpr std::size_t npos = std::string_view::npos;

    enum class Kind : unsigned char {
        Number,      // digits: # 0 ?
        Scientific,  // digits and an exponent
        General,     // the word
        Other,       // texts, dates, fractions, nothing
    };

    Kind kind = Kind::Other;
    bool percent = false;
    std::size_t general = npos;          // of the word
    std::size_t first_digit = npos;      // placeholder
    std::size_t point = npos;            // the decimal point
    std::size_t last_whole = npos;       // the last placeholder before the point
    std::size_t last_decimal = npos;     // the last one behind it, in front of an exponent
    std::size_t decimals = 0;            // placeholders between those
    std::size_t scale_before_point = 0;  // commas right behind last_whole
    std::size_t scale_behind = 0;        // and right behind last_decimal
};

// Reads one section (";" parts sections). What is quoted, escaped (\), a width (_), filled (*) or in brackets counts
// for nothing but elapsed times ([h]).
[[nodiscard]] NumberFormatSection read_number_format_section(std::string_view section);

}  // namespace kestrune::brvblib
