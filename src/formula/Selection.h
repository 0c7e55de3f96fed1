#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "formula/Area.h"

namespace kestrune::formula {

// Cells as a person names them: one or more areas of one sheet.
struct Selection {
    std::optional<std::string> sheet;
    std::vector<Area> areas;  // at least one, in the order of the text, each with its corners in order
};

struct SelectionError {
    enum class Kind : std::uint8_t {
        not_a_reference,  // may still be a name
        outside_sheet,
        several_sheets,
        other_workbook,
    };

    Kind kind = Kind::not_a_reference;
    std::string message;  // one line, names the text that is wrong
};

// Reads "B2", "$A$1:B2,D4", "F:F", "3:7", "Sheet1!A1,C5" or "'It''s'!A1". A sheet counts for all areas and may be
// repeated.
[[nodiscard]] std::variant<Selection, SelectionError> parse_selection(std::string_view text);

// "Sheet1!$A$1:$B$2,Sheet1!$D$4": areas as print areas and names store them. Without a sheet, the areas alone.
[[nodiscard]] std::string selection_text(const Selection& selection, bool absolute = false);

}  // namespace kestrune::formula
