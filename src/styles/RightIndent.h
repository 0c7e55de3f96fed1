#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/bridges/SharedState.h"
#include "excel/Range.h"

namespace kestrune::styles {

// How far the contents of right-aligned cells stand from the right edge, in levels of 0 to 15. Excel 2002 (10.0) and
// later indent such cells themselves; in older versions blanks at the end of every section of the cell's number format
// stand for the levels.
class RightIndent {
  public:
    // Asks the application which of the two it is. shared outlives the object.
    explicit RightIndent(const core::SharedState& shared);

    // The level of one cell. Fails as Excel does.
    [[nodiscard]] std::int32_t of(const excel::Range& cell) const;

    // Right-aligns cells and indents them. Whatever the sheet refuses stays as it is.
    void write(const excel::Range& range, std::int32_t level) const;

  private:
    void pad_number_formats(const excel::Range& range, std::int32_t level) const;
    [[nodiscard]] std::string padded(std::string_view format, std::int32_t level) const;

    const core::SharedState& shared_;
    bool by_indent_level_ = true;
};

// How many blanks stand at the end of a section of a number format. One behind a sign that takes the next character for
// itself ("\ ", "_ ", "* ") belongs to that.
[[nodiscard]] std::int32_t blanks_at_end(std::string_view section);

}  // namespace kestrune::styles
