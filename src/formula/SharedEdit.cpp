#include "formula/SharedEdit.h"

#include <limits>

#include "formula/Lexer.h"
#include "formula/Shift.h"

namespace kestrune::formula {

SharedEdit::SharedEdit(std::string_view text, Position anchor, std::string_view own_sheet, const Edit& edit)
    : text_(text), anchor_(anchor), own_sheet_(own_sheet), edit_(edit) {
    Lexer lexer(text);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        if (token.kind != TokenKind::reference) continue;
        if (edit.of_rows() ? !token.reference.has_rows() : !token.reference.has_columns()) continue;
        uses_.push_back({token.reference, means_edited_sheet(token.sheet(text), own_sheet, edit)});
    }
}

const std::vector<std::int64_t>& SharedEdit::form(Position before, Position after) {
    constexpr std::int64_t lost = std::numeric_limits<std::int64_t>::max();
    form_.clear();
    const bool rows = edit_.of_rows();
    const std::int64_t base = rows ? after.row : after.column;
    for (const Use& use : uses_) {
        const Reference there =
            *moved(use.reference, before.row - anchor_.row, before.column - anchor_.column, OffSheet::wrap);
        const Coordinate first = rows ? there.first_row : there.first_column;
        const Coordinate last = rows ? there.last_row : there.last_column;
        std::int32_t from = first.value;
        std::int32_t to = last.value;
        if (use.meant && !adjust_span(from, to, edit_)) {
            form_.push_back(lost);
            continue;
        }
        // A place and a distance of the same number are two forms.
        form_.push_back(first.absolute ? from * 2LL : (from - base) * 2 + 1);
        form_.push_back(last.absolute ? to * 2LL : (to - base) * 2 + 1);
    }
    return form_;
}

std::string SharedEdit::text(Position before) const {
    return adjust_for_edit(
        shift_formula(text_, before.row - anchor_.row, before.column - anchor_.column, OffSheet::wrap), own_sheet_,
        edit_);
}

}  // namespace kestrune::formula
