#pragma once

#include <cstdint>
#include <string_view>

#include "core/bridges/SharedState.h"
#include "forms/Form.h"

namespace kestrune::smart {

// The words of one of the two commands.
struct SpacingWords {
    std::string_view units;       // "rows"
    std::string_view adjustment;  // "Row adjustment"
    std::string_view title;       // "Smart Formula Row Spacing"
};

inline constexpr SpacingWords row_spacing_words{"rows", "Row adjustment", "Smart Formula Row Spacing"};
inline constexpr SpacingWords column_spacing_words{"columns", "Column adjustment", "Smart Formula Column Spacing"};

// What the settings hold of it: so many cells go with one step of what they refer to, which covers so many lines.
struct SpacingOptions {
    std::int32_t& group_size;
    std::int32_t& adjustment;
    bool& show;
};

// No sheet has more lines between two others.
inline constexpr std::int32_t longest_spacing = 1'048'575;

// The dialog of Smart Formula Spacing. OK writes the options back when both are whole numbers in range: a group size
// from 1 on, and an adjustment that may be negative.
class fSmartFmlaSpacing : public forms::Form {
  public:
    // The state and what the words and options refer to outlive it.
    fSmartFmlaSpacing(const core::SharedState& shared, const SpacingWords& words, const SpacingOptions& options);

    // Whether the person pressed OK.
    [[nodiscard]] bool confirmed() const { return confirmed_; }

  private:
    void UserForm_Activate();
    void btnOK_Click();

    const core::SharedState& shared_;
    SpacingWords words_;
    SpacingOptions options_;
    bool confirmed_ = false;
};

}  // namespace kestrune::smart
