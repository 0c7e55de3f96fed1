#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "formula/Edit.h"

namespace kestrune::formula {

// A formula that many cells share, each counting its relative references from itself, and what an edit makes of it in
// each of them. Reads the text once, so that asking for a cell costs little.
class SharedEdit {
  public:
    // `text` is the A1 formula of the cell `anchor` of `own_sheet`. All of them must outlive this.
    SharedEdit(std::string_view text, Position anchor, std::string_view own_sheet, const Edit& edit);

    // What the references become for the cell that stands at `before` and at `after` afterwards, counted from it: cells
    // of one form can share a formula again. Good until the next call.
    [[nodiscard]] const std::vector<std::int64_t>& form(Position before, Position after);
    // The formula of the cell that stood at `before`, after the edit.
    [[nodiscard]] std::string text(Position before) const;

  private:
    struct Use {
        Reference reference;
        bool meant;
    };

    std::string_view text_;
    Position anchor_;
    std::string_view own_sheet_;
    const Edit& edit_;
    std::vector<Use> uses_;
    std::vector<std::int64_t> form_;
};

}  // namespace kestrune::formula
