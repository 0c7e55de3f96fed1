#pragma once

#include <string>
#include <string_view>

#include "core/bridges/SharedState.h"
#include "forms/Looks.h"
#include "styles/StyleFields.h"

namespace kestrune::settings {

// The values that styles are tried on, as people type them: a number with either sign, nought, a date, a text.
inline constexpr std::string_view number_sample = "1234.567";
inline constexpr std::string_view date_sample = "2026-03-31";
inline constexpr std::string_view text_sample = "Sample text";

// The one that a number format is for.
std::string_view sample_for(std::string_view number_format);

// What a style makes of a value that somebody typed in a cell that nobody formatted. Numbers and dates (2026-03-31) are
// such, all else is text; what the style leaves alone is as in a new workbook.
forms::Looks sample_of(const core::SharedState& shared, const styles::StyleFields& style, std::string_view value);

// How a value shows in a number format.
std::string shown_text(const core::SharedState& shared, std::string_view number_format, std::string_view value);

}  // namespace kestrune::settings
